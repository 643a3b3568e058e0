#include "reports/merge.h"

#include "common/filememory.h"
#include "common/numbers.h"
#include "records/arealine.h"
#include "records/roomline.h"
#include "reports/reportmemory.h"
#include "reports/takeoffwalk.h"

namespace tamo {
namespace {

// A line that comes to a system already listed is read one column further to the left than the
// first one; both land on the quantity.
ColumnRange FirstQuantity(SheetKind kind) {
  return kind == SheetKind::Room ? kRoomQuantity : kAreaQuantity;
}
ColumnRange FoundQuantity(SheetKind kind) {
  return kind == SheetKind::Room ? kRoomQuantityMerged : kAreaQuantityMerged;
}

QStringView UnitsOf(SheetKind kind, QStringView line) {
  return kind == SheetKind::Room ? UnitsOfRoomLine(line) : UnitsOfAreaLine(line);
}

class Merger {
 public:
  Merger(const ReportSource& source, TakeoffVisitor* also)
      : source_(source), memory_(source.memory != nullptr ? *source.memory : own_), also_(also) {
    memory_.BeginReport();
  }

  // Returns how many lines lack a quantity.
  int Sheet(const TakeoffSheet& sheet) {
    if (also_ != nullptr || &memory_ == &own_ || sheet.text.size() > FileMemory::kLargestText)
      return ByLine(sheet);
    const MergeSheet& read = memory_.Lines(sheet);
    const QStringView text = sheet.text;
    for (const MergeLine& line : read.lines)
      Add(sheet.kind, text.sliced(line.from, line.size), line.name, line.value);
    return read.unread;
  }

  std::vector<MergedRow> Take() {
    for (size_t i = 0; i < rows_.size(); ++i) {
      if (summed_[i]) rows_[i].quantity = NumberText(rows_[i].value);
    }
    return std::move(rows_);
  }

 private:
  int ByLine(const TakeoffSheet& sheet) {
    const ColumnRange quantity = FoundQuantity(sheet.kind);
    if (also_ != nullptr) also_->BeginSheet(sheet.kind, sheet.name);
    const int unread = WalkLines(source_, sheet, [&](QStringView line) {
      if (also_ != nullptr) also_->Line(sheet.kind, line);
      Add(sheet.kind, line, memory_.NumberOf(SystemOfLine(line)), ValueOf(line, quantity));
    });
    if (also_ != nullptr) also_->EndSheet(sheet.kind);
    return unread;
  }

  // `value` is what the line adds to a system that is already listed.
  void Add(SheetKind kind, QStringView line, int name, double value) {
    const auto number = static_cast<size_t>(name);
    if (number >= rowOf_.size()) rowOf_.resize(number + 1, -1);
    if (rowOf_[number] < 0) {
      rowOf_[number] = static_cast<int>(rows_.size());
      rows_.push_back(FirstRow(kind, line));
      summed_.push_back(false);
    } else {
      const auto at = static_cast<size_t>(rowOf_[number]);
      // A sum is kept as number text, which holds 15 digits.
      rows_[at].value = CutTo15Digits(rows_[at].value + value);
      summed_[at] = true;
    }
  }

  static MergedRow FirstRow(SheetKind kind, QStringView line) {
    MergedRow row;
    row.name = SystemOfLine(line).toString();
    row.quantity = TrimmedBlanks(ColumnsOf(line, FirstQuantity(kind))).toString();
    row.units = UnitsOf(kind, line).toString();
    row.value = Value(row.quantity);
    return row;
  }

  const ReportSource& source_;
  ReportMemory own_;  // for the numbers of the names, when the source has none
  ReportMemory& memory_;
  TakeoffVisitor* also_;
  std::vector<int> rowOf_;  // of each system of the memory; -1 for none
  std::vector<MergedRow> rows_;
  std::vector<bool> summed_;
};

}  // namespace

std::vector<MergedRow> Calculate(const ReportSource& source, SystemsAhead* systems,
                                 TakeoffVisitor* also) {
  Merger merger(source, also);
  WalkSheets(
      source, [&](const TakeoffSheet& sheet) { return merger.Sheet(sheet); }, systems);
  return merger.Take();
}

}  // namespace tamo
