#pragma once

#include <QString>

namespace tamo {

// What the plan form asks of the open project's record.
class ProjectKeeper {
 public:
  virtual ~ProjectKeeper() = default;
  // Writes the record; it does so only for an open, unlocked project and while none is being read.
  virtual void SaveJobNFO() = 0;
  // Reads the record after `picked` was opened: page, zoom and scale come back only when it names
  // the same plan.
  virtual void LoadJobNFO(const QString& picked) = 0;
  // The start-up routine of the main form; returns at once while DriveBy is "True".
  virtual void InitMain() = 0;
};

}  // namespace tamo
