#pragma once

#include <memory>
#include <vector>

#include "plans/likestrokes.h"

namespace tamo {

// A letter of the sheet.
struct LikeLetter {
  PagePoint at;  // its middle
  char16_t letter = 0;
};

// The letters of a page that can be seen, blanks left out.
std::vector<LikeLetter> LettersOf(const PageContent& content);

// What of a sheet is looked through for symbols.
struct LikeSheet {
  explicit LikeSheet(std::shared_ptr<const SnapIndex> index,
                     std::shared_ptr<const std::vector<LikeLetter>> words)
      : lines(std::move(index)), strokes(*lines), letters(std::move(words)) {}

  std::shared_ptr<const SnapIndex> lines;
  StrokeIndex strokes;
  std::shared_ptr<const std::vector<LikeLetter>> letters;  // from left to right
};

}  // namespace tamo
