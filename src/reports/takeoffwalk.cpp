#include "reports/takeoffwalk.h"

#include "common/failure.h"
#include "common/textsahead.h"

namespace tamo {

void TakeoffVisitor::BeginSheet(SheetKind, const QString&) {}
void TakeoffVisitor::EndSheet(SheetKind) {}

namespace {

constexpr int kLinesBetweenTellings = 500;

// The rooms, then the areas.
class Sheets {
 public:
  explicit Sheets(const ReportSource& source) : source_(source) {
    if (LoadRooms(source, rooms_) != kNoError) rooms_.clear();
    LoadAreas(source, areas_);
  }

  qsizetype Count() const { return rooms_.size() + areas_.size(); }
  SheetKind KindOf(qsizetype at) const {
    return at < rooms_.size() ? SheetKind::Room : SheetKind::Area;
  }
  const QString& NameOf(qsizetype at) const {
    return at < rooms_.size() ? rooms_.at(at) : areas_.at(at - rooms_.size());
  }
  // From any thread.
  QString PathOf(qsizetype at) const { return SheetPath(source_, KindOf(at), NameOf(at)); }

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
    TakeoffLines sheet;
    texts_.Next(sheet.text);
    sheet.first = FirstLine(kind, sheet.text);
    LineScanner scanner = sheet.Scan();
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
