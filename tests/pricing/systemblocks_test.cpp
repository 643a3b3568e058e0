#include "pricing/systemblocks.h"

#include <gtest/gtest.h>

#include "pricing/pricingroom.h"

namespace tamo {
namespace {

using test::Compound;
using test::Drywall;
using test::Stud;

// Two lists and nothing else of the form.
struct Blocks : ::testing::Test {
  test::ScriptedMessages messages;
  Desk desk{messages};
  Form form{desk, QStringLiteral("Bench")};
  OrderedList rows{form, "System"};
  OrderedList names{form, "MaterialList"};
  SystemBlocks blocks{rows, names};

  static MaterialBlock Material(const QStringList& block) { return MaterialBlock::At(block, 0); }
};

TEST_F(Blocks, TakesTheRowsOfASystem) {
  blocks.Take(Stud() + Drywall());
  EXPECT_EQ(names.Rows(), (QStringList{"Stud", "Drywall"}));
  EXPECT_EQ(blocks.Count(), 2);
  EXPECT_EQ(blocks.At(1).upo, "16");
  EXPECT_TRUE(blocks.Holds(1));
  EXPECT_FALSE(blocks.Holds(2));
  EXPECT_EQ(blocks.Place(), 2);  // nothing is selected: the next one comes behind the last
  names.SetIndex(0);
  EXPECT_EQ(blocks.Place(), 0);
}

TEST_F(Blocks, AShortLastBlockCounts) {
  blocks.Take(Stud() + Drywall().mid(0, 3));
  EXPECT_EQ(blocks.Count(), 2);
  blocks.EmptySpareRows();
  EXPECT_EQ(rows.Count(), 24);
  EXPECT_EQ(blocks.At(1).price, "13.40");
}

TEST_F(Blocks, ANewMaterialStandsBeforeTheWaitingRow) {
  blocks.Take(Stud());
  blocks.SelectNext();
  EXPECT_EQ(names.Rows(), (QStringList{"Stud", ""}));
  blocks.Put(blocks.Place(), Material(Drywall()));
  EXPECT_EQ(names.Rows(), (QStringList{"Stud", "Drywall", ""}));
  EXPECT_EQ(rows.Rows().mid(12), Drywall());
}

TEST_F(Blocks, AnInsertedPlaceKeepsItsRowsWhenTheLastGoes) {
  blocks.Take(Stud() + Drywall());
  blocks.InsertPlace(1);
  EXPECT_EQ(names.Rows(), (QStringList{"Stud", "", "Drywall"}));
  EXPECT_EQ(names.Index(), 1);
  blocks.Delete(2);
  EXPECT_EQ(names.Rows(), (QStringList{"Stud", ""}));
  EXPECT_EQ(rows.Count(), 24);
  names.SetIndex(-1);
  blocks.Put(blocks.Place(), Material(Compound()));
  EXPECT_EQ(names.Rows(), (QStringList{"Stud", "", "Compound"}));
  EXPECT_EQ(rows.Rows().mid(24), Compound());
}

TEST_F(Blocks, TheWaitingRowCanGoAndHasNoRows) {
  blocks.Take(Stud());
  blocks.SelectNext();
  blocks.Delete(1);
  EXPECT_EQ(rows.Rows(), Stud());
  EXPECT_EQ(names.Rows(), QStringList{"Stud"});
}

TEST_F(Blocks, SelectNextGoesOnAndAddsOneRowAtTheEnd) {
  blocks.Take(Stud() + Drywall());
  names.SetIndex(0);
  EXPECT_TRUE(blocks.SelectNext());
  EXPECT_EQ(names.Index(), 1);
  EXPECT_TRUE(blocks.SelectNext());
  EXPECT_EQ(names.Index(), 2);
  EXPECT_FALSE(blocks.SelectNext());
  EXPECT_EQ(names.Count(), 3);
}

TEST_F(Blocks, OnlySpareRowsOfAMaterialAreEmptied) {
  QStringList odd = Stud();
  odd[10] = "spare";
  QStringList place(12);
  place[11] = "kept";
  blocks.Take(odd + place);
  blocks.EmptySpareRows();
  EXPECT_EQ(rows.Row(10), "");
  EXPECT_EQ(rows.Row(23), "kept");
}

}  // namespace
}  // namespace tamo
