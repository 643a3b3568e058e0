#pragma once

#include <QDateTime>
#include <QStringList>

#include "common/kit.h"

namespace tamo {

// What sync programs leave beside a file that was changed on two machines: another version of it
// under a name such as "Lobby (conflicted copy 2021-12-14).rfs". One of the two is not counted.
class ConflictCopies {
 public:
  explicit ConflictCopies(const Kit& kit) : kit_(kit) {}

  // Looks through the library and the open project. Only names are read.
  void LookAround();
  void Tick();  // every few seconds: looks around once a minute
  // For the strip at the foot of every window; "" when there is none, or they have been removed.
  QString Notice() const;

 private:
  void LookIn(const QString& folder);

  const Kit kit_;
  QStringList found_;
  QDateTime looked_;
};

bool IsConflictCopy(const QString& fileName);

}  // namespace tamo
