#include "reports/bill.h"

#include "common/columns.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "reports/linequantity.h"
#include "reports/projectfiles.h"
#include "reports/rollup.h"

namespace tamo {
namespace {

// Each row of the bill is a line and an empty line, behind the title and its empty line.
int BillLineOf(int row) {
  return 2 + 2 * row;
}

// The quantity of one takeoff line in the columns in which the bill reads it. The first line of a
// material and those that follow are read differently; tests hold the columns.
struct BillQuantity {
  SheetKind kind = SheetKind::Room;
  double first = 0;     // for a material that is new
  double firstOpu = 0;  // for a new one whose ratio counts order units per takeoff unit
  double found = 0;     // for a material already on the bill
  double whole = 0;

  BillQuantity(SheetKind sheet, QStringView line) : kind(sheet), whole(WholeQuantity(sheet, line)) {
    if (sheet == SheetKind::Room) {
      first = firstOpu = QuantityAt(line, 33, 10);
      found = QuantityAt(line, 37, 10);
    } else {
      first = found = QuantityAt(line, 25, 11);
      firstOpu = QuantityAt(line, 22, 11);
    }
  }

  double For(bool isNew, OrderTag tag) const {
    if (!isNew) return found;
    return tag == OrderTag::Opu ? firstOpu : first;
  }
};

class BillMaker : public TakeoffVisitor {
 public:
  BillMaker(const ReportSource& source, NoteBook& notes)
      : source_(source), shelf_(source), notes_(notes) {}

  void Line(SheetKind kind, QStringView line) override {
    const QStringView system = SystemOfLine(line);
    shelf_.Load(system);
    const bool firstSight = FirstSight(shelf_.Number());
    if (firstSight && !shelf_.Found()) NoteMissing(system.toString());
    if (shelf_.Blocks().empty()) return;
    const QString name = system.toString();
    const BillQuantity quantity(kind, line);
    for (const PricedBlock& block : shelf_.Blocks()) {
      const int at = AddBlock(block, name, quantity);
      if (firstSight && block.ReadsZero()) notes_.NoteZero(block, name, BillLineOf(at));
    }
  }

  std::vector<BillRow> rows;
  bool partlyRead = false;

 private:
  bool FirstSight(int system) {
    if (system < static_cast<int>(seen_.size())) return false;
    seen_.resize(static_cast<size_t>(system) + 1, true);
    return true;
  }

  void NoteMissing(const QString& system) {
    notes_.Note(QStringLiteral("The system \"%1\" has no file in this project: its materials are "
                               "not on this bill.")
                    .arg(system),
                -1);
  }

  int AddBlock(const PricedBlock& block, const QString& system, const BillQuantity& quantity) {
    int at = index_.Find(block.material);
    const bool isNew = at < 0;
    double taken = quantity.For(isNew, block.orderTag);
    if (source_.wholeQuantities) taken = quantity.whole;
    const double order = WithWaste(block, OrderQuantity(block, taken, system, standing_));
    standing_.orderQuantity = order;
    CheckFigures({order}, system);
    if (isNew) {
      at = index_.Add(block.material);
      rows.push_back({block.material, CutTo15Digits(order), QString()});
    } else {
      BillRow& row = rows[static_cast<size_t>(at)];
      row.quantity = CutTo15Digits(row.quantity + order);
    }
    rows[static_cast<size_t>(at)].orderUnit = TrimmedBlanks(block.orderUnit);
    if (taken != quantity.whole && block.orderTag != OrderTag::None) {
      partlyRead = true;
      notes_.Note(
          QStringLiteral("Of some takeoff lines with these materials the bill reads only a "
                         "part of the quantity. \"Read whole quantities\" takes all of it."),
          BillLineOf(at));
    }
    return at;
  }

  const ReportSource& source_;
  SystemShelf shelf_;
  NoteBook& notes_;
  StandingFigures standing_;
  NameRows index_;
  std::vector<bool> seen_;
};

QString Column(const QString& text, qsizetype width, bool right, const QString& material) {
  if (text.size() > width) {
    throw RunTimeFailure(
        kInvalidArgument,
        QStringLiteral(
            "The bill of material can't be made: of the material \"%1\" the text \"%2\" "
            "is %3 characters long, and its column holds %4. Shorten it in Unit Pricing, "
            "then run the bill again.")
            .arg(material, text)
            .arg(text.size())
            .arg(width));
  }
  return right ? PaddedLeft(text, width) : PaddedRight(text, width);
}

}  // namespace

std::vector<BillRow> GetMaterial(const ReportSource& source, NoteBook& notes, bool& partlyRead) {
  BillMaker maker(source, notes);
  WalkTakeoff(source, maker);
  partlyRead = maker.partlyRead;
  return std::move(maker.rows);
}

Report BillofMaterial(const ReportSource& source) {
  Report report;
  NoteBook notes;
  const std::vector<BillRow> rows = GetMaterial(source, notes, report.partlyRead);
  report.lines = {QStringLiteral("Bill Of Materials"), QString()};
  for (const BillRow& row : rows) {
    double order = Raised(row.quantity);
    if (order == 0) order = 1;
    report.lines += Blanks(5) + Column(row.material, 21, false, row.material) +
                    Column(NumberText(order), 10, true, row.material) + QStringLiteral("  ") +
                    Column(row.orderUnit, 10, false, row.material) + QStringLiteral("____________");
    report.lines += QString();
  }
  report.notes = notes.Take();
  return report;
}

}  // namespace tamo
