#include "takeoff/linesinwork.h"

#include "common/failure.h"
#include "records/storable.h"

namespace tamo {

void LinesInWork::Begin(const QString& name) {
  job_ = shared_.JobID;
  name_ = name;
}

void LinesInWork::Forget() {
  name_.clear();
}

void LinesInWork::FollowProject() {
  Forget();
  job_ = shared_.JobID;
}

void LinesInWork::RequireStorable(const QString& name) const {
  RequireName(what_, name);
  if (!AreOf(name)) {
    const QString whose = OfOpenProject()
                              ? QStringLiteral("another %1 than \"%2\"").arg(what_, name)
                              : QStringLiteral("another project than the open one");
    throw RunTimeFailure(
        kInvalidArgument,
        QStringLiteral("The %1 on the screen belongs to %2. Nothing was stored; type the %1's name "
                       "and press Enter.")
            .arg(what_, whose));
  }
}

}  // namespace tamo
