#include "plans/sheetbox.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

using namespace tamo;

namespace {

struct Boxing : ::testing::Test {
  SheetBox box;
  int painted = 0;
  std::vector<DrawnBox> symbols;

  void SetUp() override {
    box.onChanged = [this] { ++painted; };
    box.onSymbol = [this](const DrawnBox& symbol) { symbols.push_back(symbol); };
  }
};

}  // namespace

TEST_F(Boxing, ADragUpAndToTheLeftGivesTheSameBox) {
  box.Ask(BoxUse::Table);
  EXPECT_TRUE(box.Asked());
  box.Begin({300, 200});
  EXPECT_TRUE(box.Growing());
  EXPECT_FALSE(box.Drawn().has_value()) << "one corner is no box";
  box.Stretch(2, {150, 180});
  EXPECT_TRUE(box.Asked()) << "until it ends";
  box.End(2, {100, 50});
  EXPECT_FALSE(box.Asked());
  EXPECT_FALSE(box.Growing());
  ASSERT_TRUE(box.Drawn().has_value());
  EXPECT_EQ(box.Drawn()->page, 2);
  EXPECT_EQ(box.Drawn()->place, (PageBox{100, 50, 300, 200}));
  EXPECT_TRUE(symbols.empty());
}

TEST_F(Boxing, OneAroundASymbolIsHandedOnAndGone) {
  box.Ask(BoxUse::Symbol);
  box.Draw(1, {10, 10}, {40, 30});
  ASSERT_EQ(symbols.size(), 1U);
  EXPECT_EQ(symbols[0].place, (PageBox{10, 10, 40, 30}));
  EXPECT_FALSE(box.Drawn().has_value());
  // The next one that nobody asked for frames a table.
  box.Draw(1, {10, 10}, {40, 30});
  EXPECT_EQ(symbols.size(), 1U);
  EXPECT_TRUE(box.Drawn().has_value());
}

TEST_F(Boxing, ATableStaysUntilTheNextBoxOrUntilItIsDropped) {
  box.Draw(1, {0, 0}, {10, 10});
  box.Ask(BoxUse::Table);
  EXPECT_TRUE(box.Drawn().has_value());
  box.Leave();
  EXPECT_FALSE(box.Asked());
  EXPECT_TRUE(box.Drawn().has_value());
  box.Drop();
  EXPECT_FALSE(box.Drawn().has_value());
}

TEST_F(Boxing, AskingAnewForgetsACorner) {
  box.Ask(BoxUse::Symbol);
  box.Begin({5, 5});
  box.Ask(BoxUse::Table);
  EXPECT_FALSE(box.Growing());
  box.Begin({5, 5});
  box.End(1, {9, 9});
  EXPECT_TRUE(symbols.empty()) << "the last use counts";
}

TEST_F(Boxing, EveryChangeIsPainted) {
  box.Ask(BoxUse::Table);
  EXPECT_EQ(painted, 1);
  box.Begin({0, 0});
  box.Stretch(1, {5, 5});
  EXPECT_EQ(painted, 2);
  box.End(1, {6, 6});
  EXPECT_EQ(painted, 3);
  box.Leave();
  EXPECT_EQ(painted, 4);
}

TEST_F(Boxing, APlaceThatIsNoneDrawsNothing) {
  const double none = std::numeric_limits<double>::quiet_NaN();
  box.Draw(1, {none, 0}, {10, 10});
  box.Draw(1, {0, 0}, {2e6, 10});
  EXPECT_FALSE(box.Drawn().has_value());
  EXPECT_EQ(painted, 0);
}

TEST(SheetBox, NeedsNobodyWhoListens) {
  SheetBox alone;
  alone.Ask(BoxUse::Symbol);
  alone.Draw(1, {0, 0}, {5, 5});
  EXPECT_FALSE(alone.Drawn().has_value());
}
