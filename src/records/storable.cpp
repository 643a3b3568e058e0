#include "records/storable.h"

#include "common/failure.h"
#include "common/paths.h"

namespace tamo {

void RequireName(const QString& what, const QString& name) {
  if (name.isEmpty()) {
    throw RunTimeFailure(
        kInvalidArgument,
        QStringLiteral("No %1 is named, so nothing can be stored. Type the name of the %1 and "
                       "press Enter first.")
            .arg(what));
  }
  const QString refusal = NameRefusal(name);
  if (!refusal.isEmpty()) throw RunTimeFailure(kInvalidArgument, refusal);
}

}  // namespace tamo
