#include "reports/merge.h"

#include "common/columns.h"
#include "common/numbers.h"
#include "reports/namerows.h"
#include "reports/takeoffwalk.h"

namespace tamo {
namespace {

// The columns of a takeoff line that the merge reads. A line that comes to a system already listed
// is read one column further to the left than the first one; both land on the quantity.
struct QuantityColumns {
  qsizetype found;  // 15 characters
  qsizetype first;  // 14 characters
};
constexpr QuantityColumns kRoomColumns{32, 33};
constexpr QuantityColumns kAreaColumns{21, 22};

QStringView View(QStringView line, qsizetype from, qsizetype width) {
  if (from > line.size()) return {};
  return line.sliced(from - 1, qMin(width, line.size() - from + 1));
}

QString TrimmedText(QStringView text) {
  return TrimmedBlanks(text.toString());
}

QString UnitsOf(SheetKind kind, QStringView line) {
  qsizetype behind = 35;
  if (kind == SheetKind::Room) behind = line.size() > 46 ? 47 : 43;
  return TrimmedText(View(line, behind + 1, line.size()));
}

class Merger : public TakeoffVisitor {
 public:
  void Line(SheetKind kind, QStringView line) override {
    const QuantityColumns& columns = kind == SheetKind::Room ? kRoomColumns : kAreaColumns;
    const QStringView name = SystemOfLine(line);
    const int at = index_.Find(name);
    if (at < 0) {
      MergedRow row;
      row.name = index_.At(index_.Add(name));
      row.quantity = TrimmedText(View(line, columns.first, 14));
      row.units = UnitsOf(kind, line);
      row.value = Value(row.quantity);
      rows_.push_back(row);
      summed_.push_back(false);
    } else {
      MergedRow& row = rows_[static_cast<size_t>(at)];
      // A sum is kept as number text, which holds 15 digits.
      row.value = CutTo15Digits(row.value + Value(View(line, columns.found, 15)));
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
  NameRows index_;
  std::vector<MergedRow> rows_;
  std::vector<bool> summed_;
};

}  // namespace

std::vector<MergedRow> Calculate(const ReportSource& source) {
  Merger merger;
  WalkTakeoff(source, merger);
  return merger.Take();
}

}  // namespace tamo
