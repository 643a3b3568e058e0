#include "plans/likesheet.h"

#include <algorithm>

namespace tamo {

std::vector<LikeLetter> LettersOf(const PageContent& content) {
  std::vector<LikeLetter> letters;
  for (const TextPiece& piece : content.texts) {
    if (piece.hidden || piece.clipped) continue;
    const auto placed = std::min(piece.text.size(), static_cast<qsizetype>(piece.places.size()));
    for (qsizetype i = 0; i < placed; ++i) {
      const PageBox& box = piece.places[static_cast<size_t>(i)].box;
      if (piece.text[i].isSpace()) continue;
      letters.push_back({box.Middle(), piece.text[i].unicode()});
    }
  }
  std::stable_sort(letters.begin(), letters.end(),
                   [](const LikeLetter& a, const LikeLetter& b) { return a.at.x < b.at.x; });
  return letters;
}

}  // namespace tamo
