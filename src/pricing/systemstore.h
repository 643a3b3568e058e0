#pragma once

#include <QString>

#include "common/kit.h"
#include "records/systemfile.h"

namespace tamo {

// The systems on the disk: the library's, and the open project's own copies.
class SystemStore {
 public:
  explicit SystemStore(const Kit& kit) : kit_(kit) {}

  // The project's copy first. False when there is none anywhere; a file that can't be read raises a
  // RunTimeFailure that names it.
  bool Read(const QString& name, SystemFile& system);
  // Both the library's file and the project's copy. False when another program has changed the
  // system since it was read here, and the estimator takes that: it is to be read again.
  bool Write(const SystemFile& system);
  // The project's copy with a project open, the library's file otherwise. A file that is not there
  // is no failure.
  void Remove(const QString& name);
  // A system of that name would be read.
  bool Has(const QString& name);

 private:
  bool InProject() const { return !kit_.shared.JobID.isEmpty(); }

  const Kit kit_;
  QString read_;     // the system that was last read or written
  QString library_;  // and its file in the library, then; "" when there was none
};

}  // namespace tamo
