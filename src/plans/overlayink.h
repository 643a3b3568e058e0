#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tamo {

// How dark each pixel of a picture is, row by row from the top: 0 white to 255 black.
struct Ink {
  int width = 0;
  int height = 0;
  std::vector<uint8_t> darkness;  // width * height of them

  Ink() = default;
  Ink(int w, int h) : width(w), height(h), darkness(size_t(w) * size_t(h)) {}
  const uint8_t* Row(int y) const { return darkness.data() + size_t(y) * size_t(width); }
  uint8_t* Row(int y) { return darkness.data() + size_t(y) * size_t(width); }
};

// Of pixels 0xffRRGGBB, width * height of them.
Ink InkOf(const uint32_t* pixels, int width, int height);
// Each pixel as dark as the darkest at most `reach` pixels aside and above or below.
Ink Spread(const Ink& ink, int reach);

// Which of the two sheets is shown.
enum class OverlayLayer { Both, Old, Now };

// A pixel of one sheet that has nothing of the other within a pixel's reach: what an edge may be
// painted differently is no change.
inline constexpr int kOverlayReach = 1;

// Lays two pictures of one size over each other: what only the old one has is red, what only the
// new one has is green, what both have is grey. `margin` pixels around, at least kOverlayReach of
// them where there is a neighbour, are looked at and left out of `pixels`, 0xffRRGGBB each.
struct OverlayMargin {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
};
void LayOver(const Ink& old, const Ink& now, const OverlayMargin& margin, uint32_t* pixels);

}  // namespace tamo
