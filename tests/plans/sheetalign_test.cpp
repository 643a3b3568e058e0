#include "plans/sheetalign.h"

#include <gtest/gtest.h>

#include <random>

using namespace tamo;

namespace {

constexpr PageSize kSheet = {2592, 1728};

// A drawing with a frame, a title block, walls of rooms and some slanting lines.
SheetLinework Drawing(unsigned seed, int rooms = 60) {
  std::mt19937 random(seed);
  const auto pick = [&](double from, double to) {
    return std::uniform_real_distribution<double>(from, to)(random);
  };
  SheetLinework work;
  work.size = kSheet;
  const auto rectangle = [&](double x, double y, double w, double h) {
    work.lines.push_back({{x, y}, {x + w, y}});
    work.lines.push_back({{x + w, y}, {x + w, y + h}});
    work.lines.push_back({{x + w, y + h}, {x, y + h}});
    work.lines.push_back({{x, y + h}, {x, y}});
  };
  rectangle(36, 36, kSheet.width - 72, kSheet.height - 72);
  rectangle(kSheet.width - 300, 36, 264, kSheet.height - 72);
  for (int i = 0; i < rooms; ++i) {
    // One after the other: every compiler draws the same.
    const double height = pick(20, 160);
    const double width = pick(20, 240);
    const double top = pick(60, 1500);
    rectangle(pick(60, 2000), top, width, height);
  }
  for (int i = 0; i < rooms; ++i) {
    const double x = pick(60, 2000);
    const double y = pick(60, 1500);
    work.lines.push_back({{x, y}, {x + pick(-80, 80), y + pick(-80, 80)}});
  }
  return work;
}

// The drawing as it stood before: laid otherwise, some of it gone, some of it another.
SheetLinework Former(const SheetLinework& now, const SheetFit& fit, double changed, unsigned seed) {
  std::mt19937 random(seed);
  std::uniform_real_distribution<double> part(0, 1);
  SheetLinework old;
  old.size = {now.size.width / fit.Size(), now.size.height / fit.Size()};
  if (fit.Quarters() % 2 == 1) std::swap(old.size.width, old.size.height);
  for (const PageLine& line : now.lines) {
    PageLine former = {fit.Back(line.from), fit.Back(line.to)};
    const bool frame = &line - now.lines.data() < 8;
    if (!frame && part(random) < changed) {
      former.from.x += 300 * part(random) - 150;
      former.to.y += 300 * part(random) - 150;
    }
    old.lines.push_back(former);
  }
  return old;
}

}  // namespace

TEST(SheetAlign, ASheetOfTheSamePaperLiesAsItIs) {
  const SheetLinework now = Drawing(1);
  const SheetAlignment lies = AlignSheets(Former(now, {}, 0.1, 2), now);
  EXPECT_TRUE(lies.sure);
  EXPECT_LT(FarthestApart(lies.fit, {}, kSheet), 0.01);
  EXPECT_GT(lies.agreed, 0.8);
}

TEST(SheetAlign, AnyPlaceSizeAndTurnIsFoundWithinATenthOfAPoint) {
  std::mt19937 random(4);
  const auto pick = [&](double from, double to) {
    return std::uniform_real_distribution<double>(from, to)(random);
  };
  double worst = 0;
  int sheets = 0;
  for (const double size : {1.0, 0.5, 2.0, 0.7712, 1.3}) {
    for (const double turn : {0.0, 90.0, 180.0, 270.0, 0.35, 89.7}) {
      const SheetLinework now = Drawing(unsigned(10 + sheets));
      const SheetFit fit = Fit(size, turn, pick(-150, 150), pick(-150, 150));
      const SheetLinework old = Former(now, fit, 0.15, unsigned(99 + sheets));
      const SheetAlignment lies = AlignSheets(old, now);
      EXPECT_TRUE(lies.sure) << size << ' ' << turn << ' ' << lies.agreed;
      // Turned sheets lie far off the paper: the corners that are seen count.
      for (const PagePoint corner :
           {PagePoint{0, 0}, PagePoint{kSheet.width, 0}, PagePoint{0, kSheet.height},
            PagePoint{kSheet.width, kSheet.height}}) {
        const double off = Distance(lies.fit.To(fit.Back(corner)), corner);
        EXPECT_LT(off, 0.2) << size << ' ' << turn;
        worst = std::max(worst, off);
      }
      ++sheets;
    }
  }
  RecordProperty("worst", std::to_string(worst));
  EXPECT_EQ(sheets, 30);
}

TEST(SheetAlign, TheTitleFrameIsEnough) {
  SheetLinework now = Drawing(7);
  SheetLinework old = Drawing(8);
  const SheetFit fit = Fit(1, 0, 40, -25);
  for (size_t i = 0; i < 8; ++i)
    old.lines[i] = {fit.Back(now.lines[i].from), fit.Back(now.lines[i].to)};
  const SheetAlignment lies = AlignSheets(old, now);
  EXPECT_TRUE(lies.sure) << lies.agreed;
  EXPECT_LT(FarthestApart(lies.fit, fit, kSheet), 0.2);
}

TEST(SheetAlign, SheetsThatHaveNothingInCommonAreNotLaidInSilence) {
  SheetLinework now = Drawing(21);
  SheetLinework old = Drawing(22);
  now.lines.erase(now.lines.begin(), now.lines.begin() + 8);
  old.lines.erase(old.lines.begin(), old.lines.begin() + 8);
  const SheetAlignment lies = AlignSheets(old, now);
  EXPECT_FALSE(lies.sure) << lies.agreed;
  EXPECT_LT(lies.agreed, 0.35);
  EXPECT_LT(FarthestApart(lies.fit, {}, kSheet), 0.01) << "they lie as their paper does";
}

TEST(SheetAlign, ADenseHatchAgreesWithAnythingAndSaysNothing) {
  SheetLinework now;
  SheetLinework old;
  now.size = old.size = kSheet;
  for (int i = 0; i < 800; ++i) {
    now.lines.push_back({{100.0, 100 + i * 0.7}, {1500.0, 100 + i * 0.7}});
    old.lines.push_back({{900.0, 700 + i * 0.7}, {2300.0, 700 + i * 0.7}});
  }
  EXPECT_FALSE(AlignSheets(old, now).sure);
}

TEST(SheetAlign, EmptySheetsLieAsPaperAndSaySo) {
  SheetLinework now;
  now.size = kSheet;
  SheetLinework old;
  old.size = {1296, 864};
  const SheetAlignment lies = AlignSheets(old, now);
  EXPECT_FALSE(lies.sure);
  EXPECT_DOUBLE_EQ(lies.fit.Size(), 2);
  EXPECT_DOUBLE_EQ(lies.agreed, 0);
}

TEST(SheetAlign, TwoRoughPointsAreMadeExactByTheLines) {
  const SheetLinework now = Drawing(31);
  const SheetFit fit = Fit(1.7, 12, 80, 30);
  const SheetLinework old = Former(now, fit, 0.1, 32);
  const PagePoint one = {200, 200};
  const PagePoint other = {2200, 1400};
  const auto rough = FitByPoints(fit.Back(one), fit.Back(other), {one.x + 2, one.y - 1},
                                 {other.x - 2, other.y + 2});
  ASSERT_TRUE(rough.has_value());
  const SheetAlignment lies = RefinedFit(old, now, *rough);
  EXPECT_TRUE(lies.byHand);
  EXPECT_LT(Distance(lies.fit.To(fit.Back(one)), one), 0.1);
  EXPECT_LT(Distance(lies.fit.To(fit.Back(other)), other), 0.1);
}

TEST(SheetFit, PointsBackAndForth) {
  const SheetFit fit = Fit(2, 90, 10, 20);
  const PagePoint at = fit.To({3, 4});
  EXPECT_NEAR(at.x, 10 - 8, 1e-12);
  EXPECT_NEAR(at.y, 20 + 6, 1e-12);
  EXPECT_NEAR(fit.Back(at).x, 3, 1e-12);
  EXPECT_NEAR(fit.Back(at).y, 4, 1e-12);
  EXPECT_EQ(fit.Quarters(), 1);
  EXPECT_EQ(Fit(1, 270, 0, 0).Quarters(), 3);
  EXPECT_EQ(Fit(1, -0.3, 0, 0).Quarters(), 0);
  EXPECT_FALSE(FitByPoints({1, 1}, {1, 1}, {0, 0}, {5, 5}).has_value());
  EXPECT_FALSE(FitByPoints({0, 0}, {5, 5}, {1, 1}, {1, 1}).has_value());
  const SheetFit into = FitInto({100, 100}, {400, 200});
  EXPECT_NEAR(into.To({0, 0}).x, 100, 1e-12);
  EXPECT_NEAR(into.To({100, 100}).y, 200, 1e-12);
}
