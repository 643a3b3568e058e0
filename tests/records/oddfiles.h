#pragma once

#include <QByteArray>
#include <random>

namespace tamo::test {

// The bytes of a file as an editor, an older machine or an accident may leave them: any number of
// lines of any content, each kind of line end, with or without a byte-order mark and an end of the
// last line, UTF-8 or Windows-1252, sometimes cut off in the middle.
QByteArray OddFile(std::mt19937& dice);

}  // namespace tamo::test
