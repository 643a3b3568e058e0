#include "plans/overlayink.h"

#include <gtest/gtest.h>

#include "plans/changedcells.h"
#include "plans/picturelines.h"

using namespace tamo;

namespace {

// An upright line of ink, `dark` each pixel.
Ink Upright(int width, int height, int x, uint8_t dark, int thick = 1) {
  Ink ink(width, height);
  for (int y = 2; y < height - 2; ++y) {
    for (int i = 0; i < thick; ++i) ink.Row(y)[x + i] = dark;
  }
  return ink;
}

uint32_t MiddleOf(const Ink& old, const Ink& now, int x) {
  std::vector<uint32_t> pixels(now.darkness.size());
  LayOver(old, now, {}, pixels.data());
  return pixels[size_t(now.height / 2) * size_t(now.width) + size_t(x)];
}

int Red(uint32_t pixel) {
  return int(pixel >> 16 & 255);
}
int Green(uint32_t pixel) {
  return int(pixel >> 8 & 255);
}

std::vector<ChangedPlace> Places(const Ink& old, const Ink& now, bool scan = false) {
  ChangedCells cells({double(now.width), double(now.height)}, 1, scan);
  cells.Add(old, now, {}, 0, 0);
  return cells.Places();
}

}  // namespace

TEST(OverlayInk, GoneIsRedComeIsGreenStayedIsGrey) {
  const Ink none(40, 40);
  const Ink line = Upright(40, 40, 20, 255);
  const uint32_t gone = MiddleOf(line, none, 20);
  EXPECT_GT(Red(gone), 200);
  EXPECT_LT(Green(gone), 60);
  const uint32_t come = MiddleOf(none, line, 20);
  EXPECT_LT(Red(come), 60);
  EXPECT_GT(Green(come), 120);
  const uint32_t stayed = MiddleOf(line, line, 20);
  EXPECT_EQ(Red(stayed), Green(stayed));
  EXPECT_LT(Red(stayed), 200);
  EXPECT_EQ(MiddleOf(none, none, 20), 0xffffffffU);
}

TEST(OverlayInk, AnEdgePaintedBetweenTwoPixelsIsNoChange) {
  const Ink sharp = Upright(40, 40, 20, 255);
  Ink between = Upright(40, 40, 20, 128);
  for (int y = 2; y < 38; ++y) between.Row(y)[21] = 127;
  for (const auto& [old, now] : {std::pair(sharp, between), std::pair(between, sharp)}) {
    EXPECT_TRUE(Places(old, now).empty());
  }
}

TEST(OverlayInk, AThinLineThatCameIsAPlace) {
  const Ink none(100, 100);
  const std::vector<ChangedPlace> places = Places(none, Upright(100, 100, 50, 85));
  ASSERT_EQ(places.size(), 1U);
  EXPECT_EQ(places[0].kind, ChangedPlace::Kind::Come);
  EXPECT_NEAR(places[0].box.left, 50, 0.01);
  EXPECT_NEAR(places[0].box.right, 51, 0.01);
  EXPECT_NEAR(places[0].box.top, 2, 0.01);
  EXPECT_NEAR(places[0].box.bottom, 98, 0.01);
}

TEST(OverlayInk, NearChangesAreOnePlaceFarOnesAreTwo) {
  const Ink none(300, 100);
  Ink now = Upright(300, 100, 20, 255);
  for (int y = 2; y < 98; ++y) now.Row(y)[30] = now.Row(y)[200] = 255;
  const std::vector<ChangedPlace> places = Places(none, now);
  ASSERT_EQ(places.size(), 2U);
  EXPECT_NEAR(places[0].box.right, 31, 0.01);
  EXPECT_NEAR(places[1].box.left, 200, 0.01);
}

TEST(OverlayInk, AMovedLineIsGoneAndCome) {
  const std::vector<ChangedPlace> places =
      Places(Upright(100, 100, 40, 255), Upright(100, 100, 46, 255));
  ASSERT_EQ(places.size(), 1U);
  EXPECT_EQ(places[0].kind, ChangedPlace::Kind::Changed);
}

TEST(OverlayInk, TheNoiseOfAScanIsNoChange) {
  Ink old(200, 200);
  Ink now(200, 200);
  unsigned state = 7;
  for (size_t i = 0; i < old.darkness.size(); ++i) {
    state = state * 1664525U + 1013904223U;
    old.darkness[i] = uint8_t(state >> 24 & 63);
    now.darkness[i] = uint8_t(state >> 16 & 63);
  }
  EXPECT_TRUE(Places(old, now, true).empty());
}

TEST(OverlayInk, SpreadTakesTheDarkestAround) {
  Ink ink(5, 5);
  ink.Row(2)[2] = 200;
  const Ink spread = Spread(ink, 1);
  EXPECT_EQ(spread.Row(1)[1], 200);
  EXPECT_EQ(spread.Row(3)[3], 200);
  EXPECT_EQ(spread.Row(2)[4], 0);
}

TEST(PictureLines, LongRunsAreLinesAlongTheirMiddle) {
  Ink ink(300, 200);
  for (int x = 20; x < 280; ++x) {
    for (int y = 50; y < 53; ++y) ink.Row(y)[x] = 255;
  }
  for (int y = 60; y < 190; ++y) ink.Row(y)[100] = 200;
  const std::vector<PageLine> lines = LinesOfPicture(ink, 2);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_NEAR(lines[0].from.y, 25.75, 1e-9);
  EXPECT_NEAR(lines[0].from.x, 10, 1e-9);
  EXPECT_NEAR(lines[0].to.x, 140, 1e-9);
  EXPECT_NEAR(lines[1].from.x, 50.25, 1e-9);
}
