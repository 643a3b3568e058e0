#include "reports/projectfiles.h"

#include "common/failure.h"
#include "common/paths.h"
#include "common/textsahead.h"
#include "records/areafile.h"
#include "records/roomfile.h"
#include "records/sheetnames.h"

namespace tamo {
namespace {

// A long sheet tells its progress within, too.
constexpr int kLinesBetweenTellings = 2000;

// The file of a room or area, "" when it can't have one.
QString SheetPath(const ReportSource& source, SheetKind kind, const QString& name) {
  if (!NameRefusal(name).isEmpty()) return {};
  return kind == SheetKind::Room ? source.project.RoomFile(name) : source.project.AreaFile(name);
}

}  // namespace

void TellProgress(const ReportSource& source, int done, int all) {
  if (source.progress && !source.progress(done, all)) {
    throw RunTimeFailure(kReportStopped,
                         QStringLiteral("The report was stopped before it was complete. Choose it "
                                        "again to make it whole."));
  }
}

void TakeoffVisitor::BeginSheet(SheetKind, const QString&) {}
void TakeoffVisitor::EndSheet(SheetKind) {}

namespace {

// Walks through the sheets while the files of the next ones are read.
class Walk {
 public:
  Walk(const ReportSource& source, TakeoffVisitor& visitor, const QStringList& rooms,
       const QStringList& areas)
      : source_(source),
        visitor_(visitor),
        texts_(source.files, Paths(source, rooms, areas)),
        all_(static_cast<int>(rooms.size() + areas.size())) {}

  void Sheet(SheetKind kind, const QString& name) {
    visitor_.BeginSheet(kind, name);
    QString text;
    texts_.Next(text);
    LineScanner scanner = kind == SheetKind::Room ? ScanRoom(text).lines : ScanArea(text);
    QStringView line;
    while (scanner.Next(line)) {
      visitor_.Line(kind, line);
      if (++lines_ % kLinesBetweenTellings == 0) TellProgress(source_, done_, all_);
    }
    visitor_.EndSheet(kind);
    TellProgress(source_, ++done_, all_);
  }

 private:
  static QStringList Paths(const ReportSource& source, const QStringList& rooms,
                           const QStringList& areas) {
    QStringList paths;
    paths.reserve(rooms.size() + areas.size());
    for (const QString& room : rooms) paths += SheetPath(source, SheetKind::Room, room);
    for (const QString& area : areas) paths += SheetPath(source, SheetKind::Area, area);
    return paths;
  }

  const ReportSource& source_;
  TakeoffVisitor& visitor_;
  TextsAhead texts_;
  int done_ = 0;
  int all_;
  int lines_ = 0;
};

}  // namespace

void WalkTakeoff(const ReportSource& source, TakeoffVisitor& visitor) {
  QStringList rooms;
  QStringList areas;
  if (ReadRoomNames(source.files, source.project, rooms) != kNoError) rooms.clear();
  ReadAreaNames(source.files, source.project, areas);
  Walk walk(source, visitor, rooms, areas);
  for (const QString& room : rooms) walk.Sheet(SheetKind::Room, room);
  for (const QString& area : areas) walk.Sheet(SheetKind::Area, area);
}

}  // namespace tamo
