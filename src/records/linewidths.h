#pragma once

#include <QString>

namespace tamo {

// `text` as it stands when it fits its column, else a RunTimeFailure that says what is too long and
// what to do: "The quantity 1234567890.11235 of Wall Paint ...". `what` names the thing, `where`
// what it belongs to (may be empty), `width` is in characters.
const QString& Fitting(const QString& text, qsizetype width, const QString& what,
                       const QString& where);

// The longest quantity a takeoff line holds, in characters, sign and point included.
inline constexpr int kQuantityWidth = 14;

}  // namespace tamo
