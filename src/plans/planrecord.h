#pragma once

#include "common/sharedfields.h"
#include "plans/projectkeeper.h"

namespace tamo {

// The open project's record, as the plan form writes it.
class PlanRecord {
 public:
  PlanRecord(SharedFields& shared, ProjectKeeper& keeper) : shared_(shared), keeper_(keeper) {}

  bool Loading() const;  // the record is being read just now
  void Save() { keeper_.SaveJobNFO(); }
  void SaveUnlessLoading();
  void SaveAfterScroll();
  // Goes the way of a save and writes nothing: the record takes the change with the next save of
  // anything else.
  void SaveSuppressed();
  void LoadFor(const QString& picked) { keeper_.LoadJobNFO(picked); }

 private:
  SharedFields& shared_;
  ProjectKeeper& keeper_;
};

}  // namespace tamo
