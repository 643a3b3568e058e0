#pragma once

namespace tamo {

// Where the reader goes who leaves the documentation.
class DocShell {
 public:
  virtual ~DocShell() = default;
  // The main form in mode 1, OST in mode 2; nothing while no mode is set.
  virtual void ShowShell() = 0;
};

}  // namespace tamo
