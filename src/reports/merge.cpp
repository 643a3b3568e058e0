#include "reports/merge.h"

#include "common/numbers.h"
#include "records/arealine.h"
#include "records/roomline.h"
#include "reports/namerows.h"
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

class Merger : public TakeoffVisitor {
 public:
  explicit Merger(TakeoffVisitor* also) : also_(also) {}

  void BeginSheet(SheetKind kind, const QString& name) override {
    if (also_ != nullptr) also_->BeginSheet(kind, name);
  }
  void Line(SheetKind kind, QStringView line) override {
    if (also_ != nullptr) also_->Line(kind, line);
    const QStringView name = SystemOfLine(line);
    const int at = index_.Find(name);
    if (at < 0) {
      MergedRow row;
      row.name = index_.At(index_.Add(name));
      row.quantity = TrimmedBlanks(ColumnsOf(line, FirstQuantity(kind))).toString();
      row.units = UnitsOf(kind, line).toString();
      row.value = Value(row.quantity);
      rows_.push_back(row);
      summed_.push_back(false);
    } else {
      MergedRow& row = rows_[static_cast<size_t>(at)];
      // A sum is kept as number text, which holds 15 digits.
      row.value = CutTo15Digits(row.value + ValueOf(line, FoundQuantity(kind)));
      summed_[static_cast<size_t>(at)] = true;
    }
  }

  std::vector<MergedRow> Take() {
    for (size_t i = 0; i < rows_.size(); ++i) {
      if (summed_[i]) rows_[i].quantity = NumberText(rows_[i].value);
    }
    return std::move(rows_);
  }

 private:
  TakeoffVisitor* also_;
  NameRows index_;
  std::vector<MergedRow> rows_;
  std::vector<bool> summed_;
};

}  // namespace

std::vector<MergedRow> Calculate(const ReportSource& source, TakeoffVisitor* also) {
  Merger merger(also);
  WalkTakeoff(source, merger);
  return merger.Take();
}

}  // namespace tamo
