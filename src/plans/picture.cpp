#include "plans/picture.h"

#include <cstddef>

namespace tamo {

Picture Turned(const Picture& picture, int turn) {
  if (turn != 90 && turn != 180 && turn != 270) return picture;
  const bool across = turn != 180;
  const int width = picture.width;
  const int height = picture.height;
  Picture turned{across ? height : width, across ? width : height, {}};
  turned.pixels.resize(picture.pixels.size());
  // Where the first pixel goes, and the way of a step to the right and a step down.
  const std::ptrdiff_t row = turned.width;
  const std::ptrdiff_t right = turn == 90 ? row : turn == 180 ? -1 : -row;
  const std::ptrdiff_t down = turn == 90 ? -1 : turn == 180 ? -row : 1;
  const std::ptrdiff_t first = turn == 90    ? height - 1
                               : turn == 180 ? row * height - 1
                                             : row * (width - 1);
  const uint32_t* from = picture.pixels.data();
  for (int y = 0; y < height; ++y) {
    std::ptrdiff_t to = first + down * y;
    for (int x = 0; x < width; ++x, to += right) turned.pixels[static_cast<size_t>(to)] = *from++;
  }
  return turned;
}

}  // namespace tamo
