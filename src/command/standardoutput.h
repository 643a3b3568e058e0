#pragma once

#include "export/bytesink.h"

namespace tamo {

// The program's standard output. 61: the disk behind it is full; 57: whoever read it has ended, or
// anything else.
class StandardOutput : public ByteSink {
 public:
  int Write(const QByteArray& bytes) override;
  bool IsTerminal() const;

 private:
  int error_ = 0;
};

}  // namespace tamo
