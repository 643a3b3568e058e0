#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "plans/pagecontent.h"
#include "plans/sheetfit.h"

namespace tamo {

// A letter that can be seen on a sheet, by its middle.
struct SeenLetter {
  char16_t letter = 0;
  PagePoint at;
  double size = 0;  // of its font
};
// Blanks left out. In points of the sheet that it is fitted to.
std::vector<SeenLetter> LettersOf(const PageContent& content, const SheetFit& fit);

// Letters by their places.
class LetterGrid {
 public:
  void Add(const SeenLetter& letter);
  // The same letter stands within a part of its size of that place.
  bool Has(const SeenLetter& letter) const;
  bool AnyIn(const PageBox& box) const;

 private:
  template <typename Visit>
  bool AnyAround(const PageBox& box, Visit visit) const;
  std::unordered_map<uint64_t, std::vector<SeenLetter>> cells_;
};

}  // namespace tamo
