#include "reports/projectfiles.h"

#include "common/failure.h"
#include "common/numbers.h"
#include "common/paths.h"
#include "common/textlines.h"

namespace tamo {
namespace {

// A long sheet tells its progress within, too.
constexpr int kLinesBetweenTellings = 2000;

QStringList EverySecond(const QStringList& lines) {
  QStringList names;
  names.reserve((lines.size() + 1) / 2);
  for (qsizetype i = 0; i < lines.size(); i += 2) names += lines[i];
  return names;
}

int LoadNames(const ReportSource& source, const QString& folder, const QString& file,
              QStringList& names) {
  QStringList lines;
  const int error = source.files.ReadLines(source.folder + folder + source.separator + file, lines);
  names = EverySecond(lines);
  return error;
}

int LoadSheet(const ReportSource& source, const QString& folder, const QString& name,
              const QString& ending, TakeoffLines& lines) {
  lines.text.clear();
  lines.first = 0;
  if (!NameRefusal(name).isEmpty()) return kFileNotFound;
  return source.files.ReadText(source.folder + folder + source.separator + name + ending,
                               lines.text);
}

}  // namespace

void TellProgress(const ReportSource& source, int done, int all) {
  if (source.progress && !source.progress(done, all)) {
    throw RunTimeFailure(kReportStopped,
                         QStringLiteral("The report was stopped before it was complete. Choose it "
                                        "again to make it whole."));
  }
}

int LoadRooms(const ReportSource& source, QStringList& rooms) {
  return LoadNames(source, QStringLiteral("Rooms"), QStringLiteral("Rooms.tamo"), rooms);
}

int LoadAreas(const ReportSource& source, QStringList& areas) {
  return LoadNames(source, QStringLiteral("ATOs"), QStringLiteral("Areas.tamo"), areas);
}

int LoadRoom(const ReportSource& source, const QString& room, TakeoffLines& lines) {
  const int error = LoadSheet(source, QStringLiteral("Rooms"), room, QStringLiteral(".rfs"), lines);
  LineScanner scanner(lines.text);
  QStringView height;
  if (scanner.Next(height)) {
    qsizetype end = height.size();
    const QStringView text(lines.text);
    if (end < text.size()) end += text.sliced(end).startsWith(QLatin1String("\r\n")) ? 2 : 1;
    lines.first = end;
  }
  return error;
}

int LoadArea(const ReportSource& source, const QString& area, TakeoffLines& lines) {
  return LoadSheet(source, QStringLiteral("ATOs"), area, QStringLiteral(".ato"), lines);
}

int LoadoiList(const ReportSource& source, QStringList& items) {
  return source.files.ReadFields(source.folder + QStringLiteral("oItems.tamo"), items);
}

int LoadAdj(const ReportSource& source, QString& adjustment) {
  QStringList fields;
  const int error =
      source.files.ReadFields(source.folder + QStringLiteral("Adjustment.tamo"), fields);
  if (!fields.isEmpty()) adjustment = fields.front();
  return error;
}

double ItemPrice(const QString& item) {
  return Value(QStringView(item).last(qMin<qsizetype>(12, item.size())));
}

void TakeoffVisitor::BeginSheet(SheetKind, const QString&) {}
void TakeoffVisitor::EndSheet(SheetKind) {}

namespace {

struct Walk {
  const ReportSource& source;
  TakeoffVisitor& visitor;
  int done = 0;
  int all = 0;
  int lines = 0;

  void Sheet(SheetKind kind, const QString& name) {
    TakeoffLines sheet;
    visitor.BeginSheet(kind, name);
    if (kind == SheetKind::Room) {
      LoadRoom(source, name, sheet);
    } else {
      LoadArea(source, name, sheet);
    }
    LineScanner scanner = sheet.Scan();
    QStringView line;
    while (scanner.Next(line)) {
      visitor.Line(kind, line);
      if (++lines % kLinesBetweenTellings == 0) TellProgress(source, done, all);
    }
    visitor.EndSheet(kind);
    TellProgress(source, ++done, all);
  }
};

}  // namespace

void WalkTakeoff(const ReportSource& source, TakeoffVisitor& visitor) {
  QStringList rooms;
  QStringList areas;
  if (LoadRooms(source, rooms) != kNoError) rooms.clear();
  LoadAreas(source, areas);
  Walk walk{source, visitor};
  walk.all = static_cast<int>(rooms.size() + areas.size());
  for (const QString& room : rooms) walk.Sheet(SheetKind::Room, room);
  for (const QString& area : areas) walk.Sheet(SheetKind::Area, area);
}

QStringView SystemOfLine(QStringView line) {
  QStringView name = line.first(qMin<qsizetype>(20, line.size()));
  while (!name.isEmpty() && name.front() == u' ') name = name.sliced(1);
  while (!name.isEmpty() && name.back() == u' ') name.chop(1);
  return name;
}

}  // namespace tamo
