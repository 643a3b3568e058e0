#include "reports/takeoffwalk.h"

#include "common/failure.h"
#include "common/paths.h"
#include "common/textsahead.h"
#include "records/areafile.h"
#include "records/roomfile.h"
#include "records/sheetnames.h"

namespace tamo {

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

constexpr int kLinesBetweenTellings = 500;

// The rooms, then the areas.
class Sheets {
 public:
  explicit Sheets(const ReportSource& source) : source_(source) {
    if (ReadRoomNames(source.files, source.project, rooms_) != kNoError) rooms_.clear();
    ReadAreaNames(source.files, source.project, areas_);
  }

  qsizetype Count() const { return rooms_.size() + areas_.size(); }
  SheetKind KindOf(qsizetype at) const {
    return at < rooms_.size() ? SheetKind::Room : SheetKind::Area;
  }
  const QString& NameOf(qsizetype at) const {
    return at < rooms_.size() ? rooms_.at(at) : areas_.at(at - rooms_.size());
  }
  // The file of a sheet, "" when it can't have one. From any thread.
  QString PathOf(qsizetype at) const {
    const QString& name = NameOf(at);
    if (!NameRefusal(name).isEmpty()) return {};
    return KindOf(at) == SheetKind::Room ? source_.project.RoomFile(name)
                                         : source_.project.AreaFile(name);
  }

 private:
  const ReportSource& source_;
  QStringList rooms_;
  QStringList areas_;
};

// Walks through the sheets while the files of the next ones are read.
class Walk {
 public:
  Walk(const ReportSource& source, TakeoffVisitor& visitor, const Sheets& sheets)
      : source_(source),
        visitor_(visitor),
        sheets_(sheets),
        texts_(source.files, sheets.Count(), [&sheets](qsizetype at) { return sheets.PathOf(at); }),
        all_(static_cast<int>(sheets.Count())) {}

  void Sheet(qsizetype at) {
    const SheetKind kind = sheets_.KindOf(at);
    visitor_.BeginSheet(kind, sheets_.NameOf(at));
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
  const ReportSource& source_;
  TakeoffVisitor& visitor_;
  const Sheets& sheets_;
  TextsAhead texts_;
  int done_ = 0;
  int all_;
  int lines_ = 0;
};

}  // namespace

void WalkTakeoff(const ReportSource& source, TakeoffVisitor& visitor) {
  const Sheets sheets(source);
  Walk walk(source, visitor, sheets);
  for (qsizetype at = 0; at < sheets.Count(); ++at) walk.Sheet(at);
}

}  // namespace tamo
