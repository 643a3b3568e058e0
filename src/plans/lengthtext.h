#pragma once

#include <QString>
#include <optional>

namespace tamo {

// The feet that a dimension as people and plans write it stands for: 58'-5", 58' 5 1/2", 7'-0 3/4",
// 5", 58 5/8 and 12.5 (feet), 12 ft 6 in, 3.2 m, 320 cm, 3,200 mm. A comma stands for thousands
// only where three digits follow. Anything else, and what is not above 0, gives nothing.
std::optional<double> FeetOf(const QString& text);

// Feet as a plan writes them, to the sixteenth of an inch: 58'-5 1/2".
QString FeetInWords(double feet);

}  // namespace tamo
