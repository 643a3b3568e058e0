#pragma once

#include <array>
#include <vector>

#include "common/tablesink.h"
#include "reports/pricedsystem.h"
#include "reports/takeoffwalk.h"

namespace tamo {

// A copy of the takeoff as a table: a row for each takeoff line, and one for each material and each
// labor under it. Does nothing without a sink.
class CopyTable {
 public:
  CopyTable(TableSink* sink, bool office);
  CopyTable(const CopyTable&) = delete;
  CopyTable& operator=(const CopyTable&) = delete;

  void BeginSheet(SheetKind kind, const QString& name);
  // A takeoff line; `quantity` as it stands there. What is under it follows, then EndLine.
  void Line(QStringView line, double quantity);
  void Material(const PricedBlock& block, double quantity, double dollars);
  void Labor(double manhours, double dollars);
  void EndLine(double dollars);
  void Manhours(double hours);

 private:
  static constexpr size_t kColumns = 11;
  using Cells = std::array<TableCell, kColumns>;

  Cells& NewRow(QStringView what);

  TableSink* sink_;
  bool office_;
  SheetKind kind_ = SheetKind::Room;
  QString sheet_;
  // Of the line in work: its texts, and its rows, which wait for what the line comes to.
  QString system_;
  QString finishArea_;
  QString unit_;
  std::vector<Cells> rows_;
};

}  // namespace tamo
