#pragma once

#include <QByteArray>

namespace tamo {

// How a text came from another one, line by line, so that a person can read it:
//
//   =3-7            lines 3 to 7 of the text before, counted from 1
//   <tab>a line     a line that stands as it is, with its end
//   ~a line         the same for a last line without an end
//
// Every byte is kept. The delta of a text from an empty one is the text itself, a tab before each
// line.
QByteArray LineDelta(const QByteArray& before, const QByteArray& after);

// False when `delta` is none, or does not fit `before`.
bool ApplyLineDelta(const QByteArray& before, const QByteArray& delta, QByteArray& after);

}  // namespace tamo
