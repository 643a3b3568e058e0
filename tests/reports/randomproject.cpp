#include "randomproject.h"

#include <QStringList>

#include "common/failure.h"

namespace tamo::test {

int MemoryDisk::Read(const QString& path, QByteArray& bytes) {
  const auto found = contents.constFind(path);
  if (found == contents.constEnd()) return kFileNotFound;
  bytes = *found;
  return kNoError;
}

namespace {

class Maker {
 public:
  Maker(MemoryDisk& disk, std::mt19937& random, int sheets)
      : disk_(disk), random_(random), sheets_(sheets) {}

  void Make() {
    systems_ = Below(6 + (sheets_ - 4) / 2) + 1;
    for (int i = 0; i < systems_; ++i) {
      if (Below(6) != 0) System(i);
    }
    Sheets("Rooms/Rooms.tamo", "Rooms/", ".rfs", true);
    Sheets("ATOs/Areas.tamo", "ATOs/", ".ato", false);
    if (Below(3) != 0) Items();
    if (Below(3) != 0) Save("Adjustment.tamo", Figure() + End());
  }

 private:
  int Below(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }
  QByteArray End() {
    static const char* const ends[] = {"\r\n", "\r\n", "\r\n", "\n", "\r", ""};
    return ends[Below(6)];
  }
  void Save(const QByteArray& file, const QByteArray& text) {
    disk_.contents.insert(QStringLiteral("/p/") + QString::fromUtf8(file), text);
  }

  QByteArray Name(int number) {
    static const char* const names[] = {
        "Wall A", "Twenty Character Sys",       "\xC3\xA9tage", "Base",
        "..",     "A Name Of Far More Than 20", "wall a",       "CON"};
    return number < 8 ? names[number] : "System " + QByteArray::number(number);
  }

  QByteArray Figure() {
    static const char* const odd[] = {"",       "0",   "-1",     "n/a",  ".",
                                      "1,500",  "1e9", "-.0004", "   7", "99999999999999999999",
                                      ".00001", "-0",  "46.50"};
    const int kind = Below(10);
    if (kind < 2) return odd[Below(13)];
    if (kind == 2 && Below(20) == 0) return QByteArray(Below(320) + 1, '9');
    return QByteArray::number(Below(1000000) / 100.0, 'f', Below(4));
  }

  QByteArray Lines(const QList<QByteArray>& lines) {
    QByteArray text;
    for (const QByteArray& line : lines) text += line + (Below(50) == 0 ? End() : "\r\n");
    return text;
  }

  void System(int number) {
    static const char* const prices[] = {"0.00", "", "0.00", "38.50", "free", "-2"};
    QList<QByteArray> lines{Name(number), "SF", prices[Below(6)], "255000000", "note", "\x01",
                            "",           ""};
    const int blocks = Below(4);
    static const char* const orderTags[] = {"upo", "upo", "opu", "opu", "", "xyz"};
    static const char* const laborTags[] = {"upm", "upm", "mpu", "mpu", "", "UPM"};
    for (int i = 0; i < blocks; ++i) {
      lines << QByteArray("Material ") + QByteArray(Below(16), 'm') << QByteArray(Below(7), 'U')
            << Figure() << Figure() << orderTags[Below(6)] << Figure() << laborTags[Below(6)]
            << Figure() << Figure() << ""
            << ""
            << "";
    }
    if (Below(8) == 0) lines = lines.mid(0, Below(static_cast<int>(lines.size())) + 1);
    Save("Systems/" + Name(number) + ".sys", Lines(lines));
  }

  QByteArray TakeoffLine(bool room) {
    if (Below(15) == 0) return QByteArray(Below(60), ' ');
    if (Below(25) == 0) return QByteArray("short line, with comma").left(Below(23));
    const QByteArray name = Name(Below(systems_ + 1));
    const QByteArray figure = Figure();
    if (room)
      return name.leftJustified(21) + QByteArray("WALLS").leftJustified(11) +
             figure.rightJustified(14) + " SF";
    return name.leftJustified(35 - figure.size()) + figure + " LF";
  }

  void Sheets(const QByteArray& list, const QByteArray& folder, const QByteArray& ending,
              bool room) {
    QList<QByteArray> names;
    const int count = Below(sheets_);
    for (int i = 0; i < count; ++i) {
      const QByteArray name = Below(12) == 0 ? "../x" : "Sheet " + QByteArray::number(i);
      names << name << "True";
      if (Below(8) == 0) continue;
      QList<QByteArray> lines;
      if (room) lines << "9";
      for (int l = Below(8); l > 0; --l) lines << TakeoffLine(room);
      Save(folder + name + ending, Lines(lines));
    }
    if (Below(10) == 0 && !names.isEmpty()) names.removeLast();
    if (Below(10) != 0) Save(list, Lines(names));
  }

  void Items() {
    QList<QByteArray> lines;
    for (int i = Below(4); i > 0; --i) {
      lines << QByteArray("Item, no. ") + QByteArray::number(i) + "   " +
                   Figure().rightJustified(12);
    }
    Save("oItems.tamo", Lines(lines));
  }

  MemoryDisk& disk_;
  std::mt19937& random_;
  int sheets_;
  int systems_ = 0;
};

}  // namespace

void FillWithRandomProject(MemoryDisk& disk, std::mt19937& random, int sheets) {
  disk.contents.clear();
  Maker(disk, random, sheets).Make();
}

}  // namespace tamo::test
