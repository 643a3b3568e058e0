#pragma once

#include <cstdint>

#include "plans/pixelmemory.h"

namespace tamo {

// A painted rectangle of pixels, row by row from the top. A pixel is 0xffRRGGBB in the machine's
// byte order, the layout that window toolkits call RGB32, so a window can wrap it without a copy.
struct Picture {
  int width = 0;
  int height = 0;
  Pixels pixels;  // width * height of them
};

// `picture` turned clockwise by 0, 90, 180 or 270 degrees.
Picture Turned(const Picture& picture, int turn);

}  // namespace tamo
