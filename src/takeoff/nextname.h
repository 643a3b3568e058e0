#pragma once

#include <QString>

namespace tamo {

// The name that AutoRoom goes on with: the number at the end of `name` (the value of its last two
// characters, or of the whole name when it has fewer) plus one, cut to its last two digits, written
// over as many last characters. 101 gives 102, 199 gives 100, A99 gives A00, A9 gives A1, Lobby
// gives Lobb1, "Room 9" gives Room10 (each held by a test).
QString NextName(const QString& name);

}  // namespace tamo
