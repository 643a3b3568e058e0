// Random keys into the two takeoff forms: what must hold after every one of them, whatever was
// done. TAMO_RANDOM_KEYS says how many keys (20000), TAMO_RANDOM_SEED where to begin (1).

#include <algorithm>

#include "common/columns.h"
#include "common/numbers.h"
#include "records/arealine.h"
#include "records/roomline.h"
#include "takeoff/takeoffgame.h"

namespace tamo::test {
namespace {

#define S QStringLiteral

Vocabulary Words() {
  Vocabulary vocabulary;
  vocabulary.words =
      QStringList{QString(),       QString(),        S("101"),   S("102"),    S("Lobby"),
                  S("lobby"),      S("Wall Paint"),  S("Paint"), S("Carpet"), S("Rubber Base"),
                  S("HM Door"),    S("ACT Ceiling"), S("Ghost"), S("CLNG"),   S("FLR"),
                  S("NORTH WALL"), S("8"),           S("10.3"),  S("-4"),     S("99999999999"),
                  S("0"),          S("2.5"),         S("CON"),   S("9")};
  const QStringList names{S("101"), S("102"), S("Lobby"), S("7")};
  const QStringList systems{QString(), S("Wall Paint"), S("Rubber Base"), S("HM Door"),
                            S("Carpet")};
  const QStringList numbers{QString(), S("8"), S("10.3"), S("-4"), S("2.5")};
  vocabulary.wordsOf = {{S("Room"), names},     {S("Description"), systems},  {S("How"), numbers},
                        {S("Length"), numbers}, {S("eDescription"), systems}, {S("Hite"), numbers},
                        {S("eLength"), numbers}};
  vocabulary.pastes =
      QStringList{S("../../x"), S("a\r\nb"), S("1,500.0"), S("a,b"), QString(), S("102")};
  return vocabulary;
}

class RoomsGame : public TakeoffGame {
 public:
  RoomsGame() {
    const ProjectFolder project(shared);
    disk.Put(project.RoomNames(), {S("101"), S("True"), S("102"), S("True")});
    disk.Put(project.RoomFile(S("101")),
             {S("8"), RoomLine::Of(S("Wall Paint"), S("NORTH"), S("450"), S("SF")).Text(),
              RoomLine::Of(S("HM Door"), QString(), S("2"), S("EA")).Text()});
    disk.Put(project.RoomFile(S("102")),
             {S("9"), RoomLine::Of(S("Rubber Base"), S("BASE"), S("20.5"), S("LF")).Text()});
    Listen(rfs, {&rfs.Room, &rfs.Description, &rfs.Units, &rfs.How, &rfs.Length, &rfs.RoomList,
                 &rfs.CopyRoomList, &rfs.RmsDelete, &rfs.RmListDelete, &rfs.PasteRoom, "RR", "RD",
                 "RH", "RL", false, true});
  }
  Form& Played() override { return rfs; }
  std::vector<Deed> Doors() override {
    return {{S("menu Tamo.EnterRoomFinishSchedule"),
             [this] { rfs.EnterRoomFinishSchedule(&shell.ost); }},
            {S("menu Tamo.TakeOffRoomFinishSchedule"),
             [this] { rfs.TakeOffRoomFinishSchedule(&shell.ost); }}};
  }

 protected:
  QString FileOf(const QString& name) const override {
    return ProjectFolder(shared).RoomFile(name);
  }
  QStringList LinesIn(const QStringList& file) const override { return Stored(file.mid(1)); }
  QStringList Stored(const QStringList& onScreen) const override {
    QStringList lines = onScreen;
    lines.removeAll(QString());
    return lines;
  }
  QString QuantityIn(const QString& line) const override {
    return TrimmedBlanks(Columns(line, 33, 14));
  }
  bool MayDiffer(const QStringList&, const QStringList&) const override { return false; }
  double Entered(const QString& line, bool surface, double height, double length) const override {
    return Value(Columns(line, 33, 14)) + (surface ? height * length : length);
  }

 private:
  RFSForm rfs{kit, plan, pricing, reports, shell, back};
};

class AreasGame : public TakeoffGame {
 public:
  AreasGame() {
    const ProjectFolder project(shared);
    disk.Put(project.AreaNames(), {S("Lobby"), S("True"), S("101"), S("True")});
    disk.Put(project.AreaFile(S("Lobby")), {AreaLine::Of(S("Wall Paint"), S("450"), S("SF")).Text(),
                                            AreaLine::Of(S("HM Door"), S("2"), S("EA")).Text()});
    disk.Put(project.AreaFile(S("101")), {AreaLine::Of(S("Rubber Base"), S("20"), S("LF")).Text()});
    Listen(ato, {&ato.Area, &ato.eDescription, &ato.Units, &ato.Hite, &ato.eLength, &ato.AreaList,
                 &ato.CopyAreaList, &ato.AreasDelete, &ato.SystemDelete, &ato.PasteArea, "", "",
                 "EH", "EL", true, false});
  }
  Form& Played() override { return ato; }
  std::vector<Deed> Doors() override {
    return {{S("menu Tamo.NonFinishScheduleItems"),
             [this] { ato.NonFinishScheduleItems(&shell.ost); }}};
  }

 protected:
  QString FileOf(const QString& name) const override {
    return ProjectFolder(shared).AreaFile(name);
  }
  QStringList LinesIn(const QStringList& file) const override { return file; }
  QStringList Stored(const QStringList& onScreen) const override { return onScreen; }
  QString QuantityIn(const QString& line) const override {
    return TrimmedBlanks(Columns(line, 21, 15));
  }
  // A new line reaches the disk with its first entry; lines that were not read come up then.
  bool MayDiffer(const QStringList& onDisk, const QStringList& onScreen) const override {
    const auto empty = [this](const QString& line) { return Value(QuantityIn(line)) == 0; };
    const bool more = onScreen.mid(0, onDisk.size()) == onDisk;
    const QStringList unsaved = more ? onScreen.mid(onDisk.size()) : onScreen;
    return std::all_of(unsaved.begin(), unsaved.end(), empty);
  }
  double Entered(const QString& line, bool surface, double height, double length) const override {
    return Value(Columns(line, surface ? 22 : 21, 15)) + (surface ? height * length : length);
  }

 private:
  EstimateForm ato{kit, plan, pricing, reports, shell, back};
};

// An area line with a comma is read back as two (held by a test of its own): none is typed there.
Vocabulary WithoutCommas(Vocabulary vocabulary) {
  vocabulary.characters.remove(QLatin1Char(','));
  vocabulary.pastes.removeIf([](const QString& text) { return text.contains(QLatin1Char(',')); });
  return vocabulary;
}

template <typename AGame>
void PlayAtRandom(const Vocabulary& vocabulary) {
  RandomPlayer player([] { return std::make_unique<AGame>(); }, vocabulary);
  const auto finding = player.Play(RandomPlayer::KeysAsked(20000), RandomPlayer::SeedAsked());
  if (finding) FAIL() << qPrintable(finding->Text());
}

TEST(RandomPlayer, RFSForm) {
  PlayAtRandom<RoomsGame>(Words());
}
TEST(RandomPlayer, EstimateForm) {
  PlayAtRandom<AreasGame>(WithoutCommas(Words()));
}

}  // namespace
}  // namespace tamo::test
