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
    if (source.files.ReadText(source.project.RoomNames(), roomNames_) == kNoError)
      rooms_ = ScanSheetNames(roomNames_);
    source.files.ReadText(source.project.AreaNames(), areaNames_);
    areas_ = ScanSheetNames(areaNames_);
  }

  size_t Count() const { return rooms_.size() + areas_.size(); }
  SheetKind KindOf(size_t at) const {
    return at < rooms_.size() ? SheetKind::Room : SheetKind::Area;
  }
  QString NameOf(size_t at) const {
    return (at < rooms_.size() ? rooms_[at] : areas_[at - rooms_.size()]).toString();
  }
  // The file of a sheet, "" when it can't have one. From any thread.
  QString PathOf(size_t at) const {
    const QString name = NameOf(at);
    if (!NameRefusal(name).isEmpty()) return {};
    return KindOf(at) == SheetKind::Room ? source_.project.RoomFile(name)
                                         : source_.project.AreaFile(name);
  }

 private:
  const ReportSource& source_;
  QString roomNames_;
  QString areaNames_;
  std::vector<QStringView> rooms_;
  std::vector<QStringView> areas_;
};

// Walks through the sheets while the files of the next ones are read.
class Walk {
 public:
  Walk(const ReportSource& source, TakeoffVisitor& visitor, const Sheets& sheets)
      : source_(source),
        visitor_(visitor),
        sheets_(sheets),
        texts_(source.files, sheets.Count(), [&sheets](size_t at) { return sheets.PathOf(at); }),
        all_(static_cast<int>(sheets.Count())) {}

  void Sheet(size_t at) {
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
  for (size_t at = 0; at < sheets.Count(); ++at) walk.Sheet(at);
}

}  // namespace tamo
