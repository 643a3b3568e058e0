#include "schedule/legend.h"

#include <gtest/gtest.h>

#include "schedule/schedulereader.h"
#include "sheetmaker.h"

namespace tamo {
namespace {

TEST(Legend, TellsWhatACodeIs) {
  SheetMaker sheet;
  sheet.Table(50, 50,
              {{"NO.", "NAME", "FLOOR", "BASE", "WALLS", "CEILING"},
               {"101", "LOBBY", "CPT-1", "RB-1", "P-1", "ACT-1"},
               {"102", "HALL", "CPT-1", "RB-1", "P-1", "ACT-1"}});
  sheet.Table(50, 400,
              {{"CODE", "DESCRIPTION", "MANUFACTURER"},
               {"CPT-1", "BROADLOOM CARPET", "MILL A"},
               {"RB-1", "RUBBER BASE", ""}});
  const Legend legend = LegendOf(FindTables(sheet.Page()));
  ASSERT_EQ(legend.count("CPT-1"), 1u);
  EXPECT_EQ(legend.at("CPT-1"), "BROADLOOM CARPET, MILL A");
  EXPECT_EQ(legend.at("RB-1"), "RUBBER BASE");
  EXPECT_EQ(legend.count("101"), 0u);
}

}  // namespace
}  // namespace tamo
