#include "windows/sheetinwindow.h"

#include <gtest/gtest.h>

using namespace tamo;

namespace {

struct Sheets : SheetView {
  explicit Sheets(PageSize size) { FillSheets({size}); }
};

// 100 points wide and 50 high; at 75 per cent a point is a pixel.
Sheets Small(int turn = 0) {
  Sheets sheets({100, 50});
  sheets.SetZoom(75);
  sheets.SetViewValue(ViewPart::Rotation, turn);
  return sheets;
}

void ExpectAt(const QPointF& place, double x, double y) {
  EXPECT_DOUBLE_EQ(place.x(), x);
  EXPECT_DOUBLE_EQ(place.y(), y);
}

}  // namespace

TEST(SheetInWindow, ASmallSheetStandsInTheMiddle) {
  const SheetInWindow place(Small(), {301, 200});
  EXPECT_DOUBLE_EQ(place.Scale(), 1);
  ExpectAt(place.Corner(), 100, 75);  // whole pixels
  ExpectAt(place.InWindow({0, 0}), 100, 75);
  ExpectAt(place.InWindow({100, 50}), 200, 125);
  EXPECT_EQ(place.OnPage({100, 75}), (PagePoint{0, 0}));
}

TEST(SheetInWindow, ALargeSheetBeginsAtThePlaceOfTheView) {
  Sheets sheets({1000, 2000});
  sheets.SetZoom(150);
  sheets.SetViewValue(ViewPart::Horizontal, 100);
  sheets.SetViewValue(ViewPart::Vertical, 5000);  // beyond the sheet
  const SheetInWindow place(sheets, {400, 300});
  EXPECT_DOUBLE_EQ(place.Scale(), 2);
  ExpectAt(place.Corner(), -200, 300 - 4000);
  EXPECT_EQ(place.OnPage({0, 300}), (PagePoint{100, 2000}));
  EXPECT_EQ(place.Shown(), QSizeF(200, 150));
}

TEST(SheetInWindow, QuartersTurnThePageClockwise) {
  const QSizeF window(100, 100);
  EXPECT_EQ(SheetInWindow(Small(90), window).Page(), QSizeF(50, 100));
  ExpectAt(SheetInWindow(Small(90), window).Turned({10, 20}), 30, 10);
  ExpectAt(SheetInWindow(Small(180), window).Turned({10, 20}), 90, 30);
  ExpectAt(SheetInWindow(Small(270), window).Turned({10, 20}), 20, 90);
  EXPECT_EQ(SheetInWindow(Small(-90), window).Turn(), 270);
  EXPECT_EQ(SheetInWindow(Small(100), window).Turn(), 90) << "the nearest quarter";
}

TEST(SheetInWindow, WindowAndPageAreTwoWaysOfTheSamePlace) {
  for (const int turn : {0, 90, 180, 270}) {
    const SheetInWindow place(Small(turn), {333, 222});
    const QPointF there = place.InWindow({12.5, 7.25});
    EXPECT_EQ(place.OnPage(there), (PagePoint{12.5, 7.25})) << turn;
    const QPointF mapped = place.ToWindow().map(QPointF(12.5, 7.25));
    ExpectAt(mapped, there.x(), there.y());
    const QPointF turned = place.TurnedAt(there);
    ExpectAt(turned, place.Turned({12.5, 7.25}).x(), place.Turned({12.5, 7.25}).y());
  }
}

TEST(SheetInWindow, WhatIsPaintedIsInDevicePixels) {
  Sheets sheets({1000, 2000});
  sheets.SetZoom(75);
  sheets.SetViewValue(ViewPart::Horizontal, 30);
  sheets.SetViewValue(ViewPart::Rotation, 90);
  const PlanView view = SheetInWindow(sheets, {401, 300}).View(1.5);
  EXPECT_EQ(view.page, 1);
  EXPECT_DOUBLE_EQ(view.pixelsPerPoint, 1.5);
  EXPECT_EQ(view.turn, 90);
  EXPECT_EQ(view.left, 45);
  EXPECT_EQ(view.top, 0);
  EXPECT_EQ(view.width, 602);
  EXPECT_EQ(view.height, 450);
  const PlanView small = SheetInWindow(Small(), {301, 200}).View(1);
  EXPECT_EQ(small.left, 0) << "it stands in the middle, nothing of it is passed over";
}
