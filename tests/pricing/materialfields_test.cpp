#include "pricing/materialfields.h"

#include <gtest/gtest.h>

#include "pricing/pricingroom.h"

namespace tamo {
namespace {

using test::Drywall;
using test::Stud;

// The material's controls on a form of their own, with no chain.
struct Fields : ::testing::Test {
  Fields() {
    fields.WatchKeys();
    form.Show();
    controls.LandMFrame.Show();
  }
  void Type(TextField& field, const QString& text) {
    desk.UserFocus(field);
    field.SelectAll();
    desk.TypeText(field, text);
  }
  bool FillWaste(const QString& text) {
    MaterialFile file;
    file.reached = 9;
    return fields.FillFrom(file, 8, MaterialFields::kWaste, text);
  }

  test::ScriptedMessages messages;
  Desk desk{messages};
  Form form{desk, QStringLiteral("Bench")};
  MaterialControls controls{form};
  MaterialFields fields{controls};
};

TEST_F(Fields, TakeABlockAndGiveItBackWithoutTags) {
  fields.Take(MaterialBlock::At(Stud(), 0));
  EXPECT_EQ(controls.Material.Text(), "Stud");
  EXPECT_EQ(controls.UPO.Text(), ".75");
  MaterialBlock expected = MaterialBlock::At(Stud(), 0);
  expected.upoTag.clear();
  expected.mnhrTag.clear();
  EXPECT_EQ(fields.Block().Rows(), expected.Rows());
  EXPECT_FALSE(fields.AllEmpty());
  fields.Clear();
  EXPECT_TRUE(fields.AllEmpty());
}

TEST_F(Fields, WhatWasGivenIsFilledOverWhatWasTypedIsNot) {
  fields.Take(MaterialBlock::At(Drywall(), 0));
  EXPECT_TRUE(FillWaste("3"));
  Type(controls.Waste, "7");
  EXPECT_FALSE(FillWaste("3"));
  EXPECT_EQ(controls.Waste.Text(), "7");
}

TEST_F(Fields, TheSameDigitsTypedAgainCountAsTyped) {
  fields.Take(MaterialBlock::At(Drywall(), 0));
  Type(controls.Waste, "10");
  EXPECT_EQ(controls.Waste.Text(), "10");
  EXPECT_FALSE(FillWaste("3"));
}

TEST_F(Fields, AnEmptiedFieldMayBeFilled) {
  Type(controls.Waste, "7");
  desk.PressKey(controls.Waste, Key::Named(Key::Name::Backspace));
  EXPECT_TRUE(FillWaste("3"));
  EXPECT_EQ(controls.Waste.Text(), "3");
}

TEST_F(Fields, AnotherSpellingIsNotTyping) {
  fields.Take(MaterialBlock::At(Drywall(), 0));
  fields.Respell(MaterialFields::kWaste, "10.00");
  EXPECT_TRUE(FillWaste("3"));
  Type(controls.Waste, "7");
  fields.Respell(MaterialFields::kWaste, "7.00");
  EXPECT_FALSE(FillWaste("3"));
}

TEST_F(Fields, ALineThatAFileDoesNotReachFillsNothing) {
  MaterialFile file;
  file.reached = 7;
  EXPECT_FALSE(fields.FillFrom(file, 8, MaterialFields::kWaste, "3"));
  EXPECT_EQ(controls.Waste.Text(), "");
}

}  // namespace
}  // namespace tamo
