#include "reports/copytable.h"

#include <algorithm>

#include "records/arealine.h"
#include "records/linecolumns.h"
#include "records/roomline.h"

namespace tamo {
namespace {

enum Column : size_t {
  kOf,
  kSheet,
  kLine,
  kSystem,
  kFinishArea,
  kQuantity,
  kUnit,
  kMaterial,
  kNeeded,
  kNeededUnit,
  kAmount
};

const QString kHours = QStringLiteral("Manhours");

}  // namespace

CopyTable::CopyTable(TableSink* sink, bool office) : sink_(sink), office_(office) {
  if (sink_ == nullptr) return;
  std::vector<TableColumn> columns = {{QStringLiteral("Of"), ColumnKind::Text, 10},
                                      {QStringLiteral("Room or area"), ColumnKind::Text},
                                      {QStringLiteral("Line"), ColumnKind::Text, 10},
                                      {QStringLiteral("System"), ColumnKind::Text},
                                      {QStringLiteral("Finish area"), ColumnKind::Text, 14},
                                      {QStringLiteral("Quantity"), ColumnKind::Number},
                                      {QStringLiteral("Unit"), ColumnKind::Text, 8},
                                      {QStringLiteral("Material"), ColumnKind::Text},
                                      {QStringLiteral("Needed"), ColumnKind::Number},
                                      {QStringLiteral("Order unit"), ColumnKind::Text, 12}};
  if (office_) {
    columns.push_back({QStringLiteral("Amount"), ColumnKind::Money});
    columns.push_back({QStringLiteral("Subtotal"), ColumnKind::Money});
  }
  sink_->Begin(columns);
}

void CopyTable::BeginSheet(SheetKind kind, const QString& name) {
  kind_ = kind;
  sheet_ = name;
}

CopyTable::Cells& CopyTable::NewRow(QStringView what) {
  Cells& row = rows_.emplace_back();
  row[kOf] = kind_ == SheetKind::Room ? QStringView(u"Room") : QStringView(u"Area");
  row[kSheet] = sheet_;
  row[kLine] = what;
  row[kSystem] = system_;
  row[kFinishArea] = finishArea_;
  return row;
}

void CopyTable::Line(QStringView line, double quantity) {
  if (sink_ == nullptr) return;
  const bool room = kind_ == SheetKind::Room;
  system_ = SystemOfLine(line).toString();
  finishArea_ = room ? RoomLine(line.toString()).FinishArea() : QString();
  unit_ = (room ? UnitsOfRoomLine(line) : UnitsOfAreaLine(line)).toString();
  Cells& row = NewRow(u"Takeoff");
  row[kQuantity] = quantity;
  row[kUnit] = unit_;
}

void CopyTable::Material(const PricedBlock& block, double quantity, double dollars) {
  if (sink_ == nullptr) return;
  Cells& row = NewRow(u"Material");
  row[kMaterial] = block.material;
  row[kNeeded] = quantity;
  row[kNeededUnit] = block.orderUnit;
  if (office_) row[kAmount] = dollars;
}

void CopyTable::Labor(double manhours, double dollars) {
  if (sink_ == nullptr) return;
  Cells& row = NewRow(u"Labor");
  row[kNeeded] = manhours;
  row[kNeededUnit] = kHours;
  if (office_) row[kAmount] = dollars;
}

void CopyTable::EndLine(double dollars) {
  if (sink_ == nullptr) return;
  for (const Cells& row : rows_) {
    std::array<TableCell, kColumns + 1> cells;
    std::copy(row.begin(), row.end(), cells.begin());
    const bool sum = office_ && &row == rows_.data() && rows_.size() > 1;
    if (sum) cells[kColumns] = dollars;
    sink_->Row({cells.data(), office_ ? kColumns + 1 : kColumns - 1}, RowWeight::Plain);
  }
  rows_.clear();
}

void CopyTable::Manhours(double hours) {
  if (sink_ == nullptr) return;
  sink_->Add(
      {u"Manhours", {}, u"Total", u"excluding unit priced items", {}, {}, {}, {}, hours, kHours},
      RowWeight::Total);
}

}  // namespace tamo
