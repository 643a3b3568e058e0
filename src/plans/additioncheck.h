#pragma once

#include <QByteArray>

namespace tamo {

// Whether `bytes` are what a save appends to a plan of `size` bytes: sealed for that place, made of
// whole objects, and with a cross-reference part that names each of them, nothing else, and what
// stood there before. Who made them is not believed.
bool IsAddition(const QByteArray& bytes, qint64 size);

}  // namespace tamo
