#pragma once

#include <QString>
#include <functional>

#include "common/disk.h"
#include "export/bytesink.h"

namespace tamo {

// Makes the file `path` in one step: whoever opens it finds the old file or the whole new one, and
// a failure leaves the old one as it was. `make` writes the bytes and answers an error number, and
// so does this; nothing throws but what `make` throws.
int MakeFileSafely(Disk& disk, const QString& path, const std::function<int(ByteSink&)>& make);

// What such an error means, in words: "the disk is full".
QString WriteReason(int error);

// The whole of a file of this machine, piece by piece.
int CopyFileInto(const QString& path, ByteSink& sink);

}  // namespace tamo
