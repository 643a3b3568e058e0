#pragma once

#include <QString>
#include <vector>

#include "plans/pagecontent.h"
#include "plans/sheetfit.h"

namespace tamo {

// How well a sheet lies over another one.
struct SheetAlignment {
  SheetFit fit;         // from the old sheet to the new one
  double agreed = 0;    // the part of their lines that lie on each other, 0 to 1
  bool sure = false;    // enough of them, and far more than by chance
  bool byHand = false;  // by two points that were given
};

// A place of the new sheet where something is another than on the old one.
struct ChangedPlace {
  enum class Kind { Gone, Come, Changed };
  Kind kind = Kind::Changed;
  PageBox box;        // points of the new sheet
  QString words;      // 8'-0" became 9'-0"; "" where only lines differ
  QString back = {};  // the same where the other plan is the newer one: 9'-0" became 8'-0"
};

// What is known of two sheets that are laid over each other.
struct SheetsCompared {
  int page = 0;       // of the new plan
  int oldPage = 0;    // 0: no sheet of the old plan belongs to it
  QString nowNumber;  // as its title block says; "" when it says none
  QString oldNumber;
  bool byNumber = false;  // they were paired by these numbers
  bool byUser = false;    // or by hand
  bool aligned = false;   // `alignment` is worked out, for good or ill
  SheetAlignment alignment;
  bool looked = false;  // `places` are worked out
  std::vector<ChangedPlace> places;
  QString limits;  // what could not be compared and why, as sentences
};

}  // namespace tamo
