#include "reports/takeoffwalk.h"

#include "common/failure.h"
#include "common/paths.h"
#include "common/textsahead.h"
#include "records/areafile.h"
#include "records/arealine.h"
#include "records/roomfile.h"
#include "records/roomline.h"
#include "records/sheetnames.h"
#include "reports/systemsahead.h"

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

}  // namespace

LineScanner LinesOf(SheetKind kind, QStringView text) {
  return kind == SheetKind::Room ? ScanRoom(text).lines : ScanArea(text);
}

// The files of the next sheets are read meanwhile.
void WalkSheets(const ReportSource& source, const std::function<int(const TakeoffSheet&)>& each,
                SystemsAhead* systems) {
  const Sheets sheets(source);
  const size_t all = sheets.Count();
  TextsAhead::Seen seen;
  if (systems != nullptr) {
    seen = [&](size_t at, const QString& text, const std::atomic<bool>& stopped) {
      systems->Look(LinesOf(sheets.KindOf(at), text), stopped);
    };
  }
  TextsAhead texts(
      source.files, all, [&sheets](size_t at) { return sheets.PathOf(at); }, {}, seen);
  for (size_t at = 0; at < all; ++at) {
    TakeoffSheet sheet{sheets.KindOf(at), at, all, sheets.NameOf(at), {}};
    const int error = texts.Next(sheet.text);
    if (error != kNoError && source.uncounted != nullptr)
      source.uncounted->File(sheets.Called(at), sheets.PathOf(at), error);
    const int unread = each(sheet);
    if (unread > 0 && source.uncounted != nullptr)
      source.uncounted->Lines(sheets.Called(at), sheets.PathOf(at), unread);
    TellProgress(source, static_cast<int>(at) + 1, static_cast<int>(all));
  }
}

int WalkLines(const ReportSource& source, const TakeoffSheet& sheet,
              const std::function<void(QStringView)>& each) {
  const ColumnRange quantity =
      sheet.kind == SheetKind::Room ? kRoomQuantityMerged : kAreaQuantityMerged;
  LineScanner lines = LinesOf(sheet);
  QStringView line;
  int unread = 0;
  for (int count = 1; lines.Next(line); ++count) {
    if (LacksQuantity(line, ColumnsOf(line, quantity))) ++unread;
    each(line);
    if (count % kLinesBetweenTellings == 0)
      TellProgress(source, static_cast<int>(sheet.number), static_cast<int>(sheet.all));
  }
  return unread;
}

void WalkTakeoff(const ReportSource& source, TakeoffVisitor& visitor, SystemsAhead* systems) {
  const auto visit = [&](const TakeoffSheet& sheet) {
    visitor.BeginSheet(sheet.kind, sheet.name);
    const int unread =
        WalkLines(source, sheet, [&](QStringView line) { visitor.Line(sheet.kind, line); });
    visitor.EndSheet(sheet.kind);
    return unread;
  };
  WalkSheets(source, visit, systems);
}

}  // namespace tamo
