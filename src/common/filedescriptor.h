#pragma once

#include "common/disk.h"

namespace tamo {

// The system's number of the file that `reader` reads, for handing it to another process; -1 when
// it reads no file of the system. Valid as long as the reader lives.
int DescriptorOf(const FileReader& reader);

}  // namespace tamo
