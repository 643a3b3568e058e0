#include "plans/linecells.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace tamo;

namespace {

const PageLine& Itself(const PageLine& line) {
  return line;
}

bool Holds(const LineCells& cells, PagePoint at, uint32_t line) {
  const auto in = cells.In(cells.Column(at.x), cells.Row(at.y));
  return std::find(in.begin(), in.end(), line) != in.end();
}

}  // namespace

TEST(LineCells, EachLineIsInEveryCellThatItRunsThrough) {
  const std::vector<PageLine> lines = {
      {{0, 0}, {300, 200}},  {{300, 10}, {20, 190}}, {{50, 0}, {50, 200}},  {{0, 120}, {300, 120}},
      {{80, 180}, {82, 20}}, {{7, 7}, {7, 7}},       {{299, 199}, {1, 0.5}}};
  const LineCells cells(lines, Itself, {8, 400, 1 << 18});
  for (uint32_t i = 0; i < lines.size(); ++i) {
    for (int step = 0; step <= 1000; ++step) {
      const double part = step / 1000.0;
      const PagePoint at = {lines[i].from.x + part * (lines[i].to.x - lines[i].from.x),
                            lines[i].from.y + part * (lines[i].to.y - lines[i].from.y)};
      // On the border of two cells it may be in either.
      EXPECT_TRUE(Holds(cells, at, i) || Holds(cells, {at.x + 1e-6, at.y + 1e-6}, i) ||
                  Holds(cells, {at.x - 1e-6, at.y - 1e-6}, i))
          << i << ' ' << part;
    }
  }
  EXPECT_FALSE(Holds(cells, {250, 20}, 0)) << "and not everywhere";
}

TEST(LineCells, PlacesOutsideBelongToTheEdge) {
  const LineCells cells(std::vector<PageLine>{{{10, 10}, {110, 60}}}, Itself, {});
  EXPECT_EQ(cells.Around(), (PageBox{10, 10, 110, 60}));
  EXPECT_EQ(cells.Column(-1e6), 0);
  EXPECT_EQ(cells.Row(9), 0);
  EXPECT_EQ(cells.Column(1e6), cells.Column(110));
  EXPECT_EQ(cells.Row(1e6), cells.Row(60));
}

TEST(LineCells, WithoutLinesThereIsOneEmptyCell) {
  const LineCells cells(std::vector<PageLine>{}, Itself, {});
  EXPECT_EQ(cells.Column(50), 0);
  EXPECT_TRUE(cells.In(0, 0).empty());
}

TEST(LineCells, AreAsManyAsAllowed) {
  const std::vector<PageLine> lines = {{{0, 0}, {100000, 100000}}};
  const LineCells few(lines, Itself, {4, 10, 1 << 18});
  EXPECT_LE(few.Column(1e9), 10);
  const LineCells inAll(lines, Itself, {4, 100000, 100});
  EXPECT_LE(inAll.Column(1e9), 10);
}
