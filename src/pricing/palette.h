#pragma once

#include <QString>
#include <array>

namespace tamo {

// The line colours that a system can have on the plan.
struct PaletteRow {
  const char* name;
  const char* label;
  const char* code;     // stored, and painted in the preview
  const char* painted;  // the swatch itself
};

// Three swatches are painted in another colour than the one they store: Violet, Dk Green, Navy. A
// test holds it.
inline constexpr std::array<PaletteRow, 15> kPalette = {
    {{"iRed", "Red", "255000000", "255000000"},
     {"iGreen", "Green", "000255000", "000255000"},
     {"iBlue", "Blue", "000000255", "000000255"},
     {"iYellow", "Yellow", "255255000", "255255000"},
     {"iOrange", "Orange", "255155000", "255155000"},
     {"iPurple", "Purple", "125000125", "125000125"},
     {"iViolet", "Violet", "240150255", "220150255"},
     {"iDkGreen", "Dk Green", "000150000", "000100000"},
     {"iNavy", "Navy", "000000175", "000000125"},
     {"iTeal", "Teal", "000255255", "000255255"},
     {"iAqua", "Aqua", "000150150", "000150150"},
     {"iBrown", "Brown", "139069013", "139069013"},
     {"iLtBlue", "Lt Blue", "150200255", "150200255"},
     {"iLtGrn", "Lt Grn", "200255200", "200255200"},
     {"iMaroon", "Maroon", "185000000", "185000000"}}};

// The background of the palette as a decimal number (blue x 65536 + green x 256 + red of a light
// grey, 240 each).
inline constexpr int kBackgroundNumber = 15790320;

// The colour in which a stored code is shown, RRRGGGBBB: red from its first three characters, green
// from characters 4 to 6, blue from its last three, each kept within 0 to 255. "" (the background)
// for no colour: an empty code or "NoColor".
QString ShownColour(const QString& code);

}  // namespace tamo
