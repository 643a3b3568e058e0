#include "reports/takeoffwalk.h"

#include "common/failure.h"
#include "common/paths.h"
#include "common/textsahead.h"
#include "records/areafile.h"
#include "records/arealine.h"
#include "records/roomfile.h"
#include "records/roomline.h"
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
    ReadNames(QStringLiteral("all rooms"), source.project.RoomNames(), roomNames_);
    ReadNames(QStringLiteral("all areas"), source.project.AreaNames(), areaNames_);
    rooms_ = ScanSheetNames(roomNames_);
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

  // As a note names it: The room "101".
  QString Called(size_t at) const {
    return (KindOf(at) == SheetKind::Room ? QStringLiteral("the room \"%1\"")
                                          : QStringLiteral("the area \"%1\""))
        .arg(NameOf(at));
  }

 private:
  void ReadNames(const QString& what, const QString& path, QString& text) {
    const int error = source_.files.ReadForReport(path, text);
    if (error == kNoError || IsMissing(error) || source_.uncounted == nullptr) return;
    source_.uncounted->File(what, path, error);
  }

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
    const int error = texts_.Next(text);
    if (error != kNoError && source_.uncounted != nullptr)
      source_.uncounted->File(sheets_.Called(at), sheets_.PathOf(at), error);
    const bool room = kind == SheetKind::Room;
    const ColumnRange quantity = room ? kRoomQuantityMerged : kAreaQuantityMerged;
    LineScanner scanner = room ? ScanRoom(text).lines : ScanArea(text);
    QStringView line;
    int unread = 0;
    while (scanner.Next(line)) {
      if (LacksQuantity(line, ColumnsOf(line, quantity))) ++unread;
      visitor_.Line(kind, line);
      if (++lines_ % kLinesBetweenTellings == 0) TellProgress(source_, done_, all_);
    }
    visitor_.EndSheet(kind);
    if (unread > 0 && source_.uncounted != nullptr)
      source_.uncounted->Lines(sheets_.Called(at), sheets_.PathOf(at), unread);
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
