#pragma once

namespace tamo {

// A new data folder, met first by the price library, gets its project number.
class ProjectNumberSeed {
 public:
  virtual ~ProjectNumberSeed() = default;
  virtual void SeedProjectNumber() = 0;  // writes Project.num only when it is missing
};

}  // namespace tamo
