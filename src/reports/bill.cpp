#include "reports/bill.h"

#include "common/columns.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "records/arealine.h"
#include "records/roomline.h"
#include "reports/linequantity.h"
#include "reports/rollup.h"
#include "reports/systemshelf.h"
#include "reports/takeoffwalk.h"

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
      first = firstOpu = ValueOf(line, kRoomQuantityStart);
      found = ValueOf(line, kRoomQuantityEnd);
    } else {
      first = found = ValueOf(line, kAreaQuantityEnd);
      firstOpu = ValueOf(line, kAreaQuantityStart);
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
    shelf_.LoadOfLine(line);
    const std::vector<PricedBlock>& blocks = shelf_.Blocks();
    const bool firstSight = shelf_.Number() == static_cast<int>(rowsOf_.size());
    if (firstSight) {
      rowsOf_.emplace_back(blocks.size(), -1);
      if (!shelf_.Found()) NoteMissing();
    }
    if (blocks.empty()) return;
    std::vector<int>& rowOf = rowsOf_[static_cast<size_t>(shelf_.Number())];
    const BillQuantity quantity(kind, line);
    for (size_t i = 0; i < blocks.size(); ++i) {
      AddBlock(blocks[i], quantity, rowOf[i]);
      if (firstSight && blocks[i].ReadsZero())
        notes_.NoteZero(blocks[i], shelf_.Asked(), BillLineOf(rowOf[i]));
    }
  }

  SystemsAhead& Systems() { return shelf_.Ahead(); }

  std::vector<BillRow> Take(bool& partlyRead) {
    std::vector<BillRow> rows;
    for (size_t i = 0; i < rows_.size(); ++i) {
      rows.push_back({names_.At(static_cast<int>(i)), rows_[i].quantity,
                      TrimmedBlanks(rows_[i].last->orderUnit)});
      if (!rows_[i].partlyRead) continue;
      partlyRead = true;
      notes_.Note(
          QStringLiteral("Of some takeoff lines with these materials the bill reads only a "
                         "part of the quantity. \"Read whole quantities\" takes all of it."),
          BillLineOf(static_cast<int>(i)));
    }
    return rows;
  }

 private:
  struct Row {
    double quantity = 0;
    const PricedBlock* last = nullptr;  // the block read last decides the order unit
    bool partlyRead = false;
  };

  void NoteMissing() {
    notes_.Note(QStringLiteral("The system \"%1\" has no file in this project: its materials are "
                               "not on this bill.")
                    .arg(shelf_.Asked()),
                -1);
  }

  // `at` is the block's row on the bill, -1 as long as it is not known.
  void AddBlock(const PricedBlock& block, const BillQuantity& quantity, int& at) {
    if (at < 0) at = names_.Find(block.material);
    const bool isNew = at < 0;
    if (isNew) {
      at = names_.Add(block.material);
      rows_.emplace_back();
    }
    double taken = quantity.For(isNew, block.orderTag);
    if (source_.wholeQuantities) taken = quantity.whole;
    standing_.orderQuantity =
        WithWaste(block, OrderQuantity(block, taken, shelf_.Asked(), standing_));
    CheckFigures({standing_.orderQuantity}, shelf_.Asked());
    Row& row = rows_[static_cast<size_t>(at)];
    // The sum is kept as number text, which holds 15 digits.
    row.quantity = CutTo15Digits(row.quantity + standing_.orderQuantity);
    row.last = &block;
    if (taken != quantity.whole && block.orderTag != OrderTag::None) row.partlyRead = true;
  }

  const ReportSource& source_;
  SystemShelf shelf_;
  NoteBook& notes_;
  StandingFigures standing_;
  NameRows names_;
  std::vector<Row> rows_;
  std::vector<std::vector<int>> rowsOf_;  // for each system, the row of each of its blocks
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
  WalkTakeoff(source, maker, &maker.Systems());
  return maker.Take(partlyRead);
}

Report BillofMaterial(const ReportSource& source) {
  Report report;
  NoteBook notes;
  const std::vector<BillRow> rows = GetMaterial(source, notes, report.partlyRead);
  report.lines = {QStringLiteral("Bill Of Materials"), QString()};
  if (source.table != nullptr)
    source.table->Begin({{QStringLiteral("Material"), ColumnKind::Text},
                         {QStringLiteral("Quantity"), ColumnKind::Number},
                         {QStringLiteral("Order unit"), ColumnKind::Text, 12}});
  for (const BillRow& row : rows) {
    double order = Raised(row.quantity);
    if (order == 0) order = 1;
    report.lines += Blanks(5) + Column(row.material, 21, false, row.material) +
                    Column(NumberText(order), 10, true, row.material) + QStringLiteral("  ") +
                    Column(row.orderUnit, 10, false, row.material) + QStringLiteral("____________");
    report.lines += QString();
    if (source.table != nullptr) source.table->Add({row.material, order, row.orderUnit});
  }
  report.notes = notes.Take();
  return report;
}

}  // namespace tamo
