#pragma once

#include "common/services.h"

namespace tamo::bench {

// Nobody sits before a benchmark: nothing is said, printed or copied, and it takes no time.
class SilentPlatform : public Messages, public Printer, public Clipboard {
 public:
  void Tell(const QString&) override {}
  bool Ask(const QString&) override { return false; }
  void SetFont(const QString&, int) override {}
  void PrintLine(const QString&) override {}
  void EndPage() override {}
  bool BeginPrint(const QString&) override { return false; }
  void EndPrint() override {}
  void Clear() override {}
  void SetText(const QString&) override {}
};

}  // namespace tamo::bench
