#include "plans/overlayink.h"

#include <algorithm>

namespace tamo {
namespace {

constexpr int kLeastInk = 24;  // what is fainter than that is no ink of its own

// How much of 255 a full pixel takes from red, green and blue.
struct Tint {
  int red;
  int green;
  int blue;
};
constexpr Tint kStayed = {115, 115, 115};
constexpr Tint kGone = {25, 235, 235};
constexpr Tint kCome = {255, 100, 225};

uint32_t Part(int stayed, int gone, int come, int Tint::*part) {
  const int taken = stayed * (kStayed.*part) + gone * (kGone.*part) + come * (kCome.*part);
  return static_cast<uint32_t>(255 - std::min(255, taken / 255));
}

uint32_t Colour(int old, int now, int nearOld, int nearNow) {
  int gone = std::max(0, old - nearNow);
  int come = std::max(0, now - nearOld);
  if (gone < kLeastInk) gone = 0;
  if (come < kLeastInk) come = 0;
  const int stayed = std::max(old - gone, now - come);
  return 0xff000000U | Part(stayed, gone, come, &Tint::red) << 16 |
         Part(stayed, gone, come, &Tint::green) << 8 | Part(stayed, gone, come, &Tint::blue);
}

}  // namespace

Ink InkOf(const uint32_t* pixels, int width, int height) {
  Ink ink(width, height);
  for (size_t i = 0; i < ink.darkness.size(); ++i) {
    const uint32_t pixel = pixels[i];
    const uint32_t light =
        (77 * (pixel >> 16 & 255) + 151 * (pixel >> 8 & 255) + 28 * (pixel & 255)) >> 8;
    ink.darkness[i] = static_cast<uint8_t>(255 - light);
  }
  return ink;
}

Ink Spread(const Ink& ink, int reach) {
  Ink aside(ink.width, ink.height);
  for (int y = 0; y < ink.height; ++y) {
    const uint8_t* from = ink.Row(y);
    uint8_t* to = aside.Row(y);
    std::copy_n(from, ink.width, to);
    for (int by = 1; by <= reach && by < ink.width; ++by) {
      for (int x = 0; x + by < ink.width; ++x) to[x] = std::max(to[x], from[x + by]);
      for (int x = by; x < ink.width; ++x) to[x] = std::max(to[x], from[x - by]);
    }
  }
  Ink spread = aside;
  for (int y = 0; y < ink.height; ++y) {
    uint8_t* to = spread.Row(y);
    for (int other = std::max(0, y - reach); other <= std::min(ink.height - 1, y + reach);
         ++other) {
      const uint8_t* from = aside.Row(other);
      for (int x = 0; x < ink.width; ++x) to[x] = std::max(to[x], from[x]);
    }
  }
  return spread;
}

void LayOver(const Ink& old, const Ink& now, const OverlayMargin& margin, uint32_t* pixels) {
  const Ink nearOld = Spread(old, kOverlayReach);
  const Ink nearNow = Spread(now, kOverlayReach);
  for (int y = margin.top; y < now.height - margin.bottom; ++y) {
    const uint8_t* const rows[] = {old.Row(y), now.Row(y), nearOld.Row(y), nearNow.Row(y)};
    for (int x = margin.left; x < now.width - margin.right; ++x)
      *pixels++ = Colour(rows[0][x], rows[1][x], rows[2][x], rows[3][x]);
  }
}

}  // namespace tamo
