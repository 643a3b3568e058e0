#pragma once

#include <array>

namespace tamo {

// The colours that the settings and the plan offer for new lines, as RRRGGGBBB.
struct SwatchRow {
  const char* name;
  const char* caption;
  const char* painted;
  const char* stored;  // "" for a swatch that only shows its colour
};

// Violet is painted lighter in red than the colour it stores; the two light swatches store nothing.
// Tests hold both.
inline constexpr std::array<SwatchRow, 15> kSwatches = {
    {{"iRed", "", "255000000", "255000000"},
     {"iGreen", "Green", "000255000", "000255000"},
     {"iBlue", "Blue", "000000255", "000000255"},
     {"iYellow", "Yellow", "255255000", "255255000"},
     {"iOrange", "Orange", "255155000", "255155000"},
     {"iPurple", "Purple", "125000125", "125000125"},
     {"iViolet", "Violet", "220150255", "240150255"},
     {"iDkGreen", "Dk Green", "000150000", "000150000"},
     {"iNavy", "Navy", "000000175", "000000175"},
     {"iTeal", "Teal", "000255255", "000255255"},
     {"iAqua", "Aqua", "000150150", "000150150"},
     {"iBrown", "Brown", "139069013", "139069013"},
     {"iMaroon", "Maroon", "185000000", "185000000"},
     {"iLtBlue", "Lt Blue", "150200255", ""},
     {"iLtGrn", "Lt Grn", "200255200", ""}}};

// The first twelve of them stand on the plan.
inline constexpr int kPlanSwatches = 12;

}  // namespace tamo
