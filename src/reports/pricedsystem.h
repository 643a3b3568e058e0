#pragma once

#include <QString>
#include <vector>

#include "records/linescanner.h"
#include "records/systemfile.h"
#include "reports/reportsource.h"

namespace tamo {

// How a block's order ratio reads: takeoff units per order unit, or order units per takeoff unit.
enum class OrderTag { None, Upo, Opu };
// How its manhour ratio reads: takeoff units per manhour, or manhours per takeoff unit.
enum class LaborTag { None, Upm, Mpu };

// One material of a system, as its twelve lines in the system's file tell it. Figures are read
// once; a text that is no number is 0.
struct PricedBlock {
  QString material;
  QString orderUnit;
  double price = 0;  // dollars for one order unit
  double ratio = 0;
  OrderTag orderTag = OrderTag::None;
  double manhourRatio = 0;
  LaborTag laborTag = LaborTag::None;
  double waste = 0;  // percent
  double wage = 0;   // dollars a manhour

  // Price, a ratio or the wage reads 0: nearly always something forgotten.
  bool ReadsZero() const { return price == 0 || ratio == 0 || manhourRatio == 0 || wage == 0; }
};

// The material rows of a system as blocks of twelve. A last block of fewer rows counts, its missing
// rows empty.
std::vector<PricedBlock> PricedBlocks(LineScanner rows);

// A system's file in the project, as the reports read it.
struct PricedSystem {
  SystemFile file;     // without its material rows
  bool found = false;  // there is such a file
  std::vector<PricedBlock> blocks;
};

PricedSystem PricedSystemOf(const QString& text);

// The text of the project's copy of the system `name`; the library is never read. What goes wrong
// is told to the source. A file that was read is remembered: when it is missing later, it is gone.
int ReadSystemText(const ReportSource& source, const QString& name, QString& text);
int LoadSystem(const ReportSource& source, const QString& name, PricedSystem& system);

}  // namespace tamo
