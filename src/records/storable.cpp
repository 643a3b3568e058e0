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

void RequireReadable(int error, const QString& what) {
  if (error == kNoError || error == kFileNotFound || error == kPathNotFound) return;
  const QString reason = error == kNoAccess ? QStringLiteral("access to its file is denied")
                                            : QStringLiteral("the device reports a failure");
  throw RunTimeFailure(
      error, QStringLiteral("%1 could not be read: %2. Nothing is stored over it, so that nothing "
                            "is lost; see to the file, then open this window again.")
                 .arg(what, reason));
}

}  // namespace tamo
