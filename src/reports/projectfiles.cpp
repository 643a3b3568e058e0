#include "reports/projectfiles.h"

#include "common/failure.h"
#include "common/numbers.h"
#include "common/paths.h"
#include "common/textlines.h"

namespace tamo {
namespace {

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

int LoadSheet(const ReportSource& source, SheetKind kind, const QString& name,
              TakeoffLines& lines) {
  lines = {};
  const QString path = SheetPath(source, kind, name);
  const int error = path.isEmpty() ? kFileNotFound : source.files.ReadText(path, lines.text);
  lines.first = FirstLine(kind, lines.text);
  return error;
}

}  // namespace

QString SheetPath(const ReportSource& source, SheetKind kind, const QString& name) {
  if (!NameRefusal(name).isEmpty()) return {};
  const bool room = kind == SheetKind::Room;
  return source.folder + (room ? QStringLiteral("Rooms") : QStringLiteral("ATOs")) +
         source.separator + name + (room ? QStringLiteral(".rfs") : QStringLiteral(".ato"));
}

qsizetype FirstLine(SheetKind kind, QStringView text) {
  LineScanner scanner(text);
  QStringView height;
  if (kind == SheetKind::Area || !scanner.Next(height)) return 0;
  const qsizetype end = height.size();
  if (end == text.size()) return end;
  return end + (text.sliced(end).startsWith(QLatin1String("\r\n")) ? 2 : 1);
}

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
  return LoadSheet(source, SheetKind::Room, room, lines);
}

int LoadArea(const ReportSource& source, const QString& area, TakeoffLines& lines) {
  return LoadSheet(source, SheetKind::Area, area, lines);
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

QStringView SystemOfLine(QStringView line) {
  QStringView name = line.first(qMin<qsizetype>(20, line.size()));
  while (!name.isEmpty() && name.front() == u' ') name = name.sliced(1);
  while (!name.isEmpty() && name.back() == u' ') name.chop(1);
  return name;
}

}  // namespace tamo
