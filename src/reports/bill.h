#pragma once

#include <QString>
#include <vector>

#include "reports/notebook.h"
#include "reports/reportsource.h"

namespace tamo {

// One material of the bill.
struct BillRow {
  QString material;
  double quantity = 0;  // in order units with waste, as 15 digits hold it
  QString orderUnit;    // of the system that was read last
};

// Every material of every system of every takeoff line, merged by its exact name in order of first
// appearance. Waste is taken line by line, before the merge. The first line that brings a material
// is read in other columns than those that follow. `partlyRead` tells of lines of which a part was
// not read. Notes mean the lines that BillofMaterial makes of the rows.
std::vector<BillRow> GetMaterial(const ReportSource& source, NoteBook& notes, bool& partlyRead);

// What is to be ordered, with a blank for the buyer. A material that appears is ordered at least
// once. A text wider than its column raises a RunTimeFailure that names the material.
Report BillofMaterial(const ReportSource& source);

}  // namespace tamo
