#include "pricing/systemstore.h"

#include "common/failure.h"
#include "common/paths.h"
#include "pricing/steps.h"

namespace tamo {
namespace {

bool Missing(int error) {
  return error == kFileNotFound || error == kPathNotFound;
}

}  // namespace

bool SystemStore::Read(const QString& name, SystemFile& system) {
  RequireFileName(name);
  QString text;
  int error = kPathNotFound;
  if (InProject()) error = kit_.files.ReadText(ProjectSystemPath(kit_.shared, name), text);
  if (Missing(error)) error = kit_.files.ReadText(MasterSystemPath(kit_.shared, name), text);
  if (Missing(error)) return false;
  if (error != kNoError)
    throw RunTimeFailure(
        error, QStringLiteral("The system \"%1\" can't be read: %2. Its file is "
                              "unchanged. Look at the rights of the file.")
                   .arg(name, error == kNoAccess ? QStringLiteral("there is no right to read it")
                                                 : ReasonText(error)));
  system = ReadSystemFile(text);
  if (!system.description.isEmpty()) RequireFileName(system.description);
  return true;
}

void SystemStore::Write(const SystemFile& system) {
  const QString text = SystemFileText(system);
  kit_.files.SaveText(MasterSystemPath(kit_.shared, system.description), text);
  if (InProject()) kit_.files.SaveText(ProjectSystemPath(kit_.shared, system.description), text);
}

void SystemStore::Remove(const QString& name) {
  kit_.files.Remove(InProject() ? ProjectSystemPath(kit_.shared, name)
                                : MasterSystemPath(kit_.shared, name));
}

bool SystemStore::Has(const QString& name) {
  if (!NameRefusal(name).isEmpty()) return false;
  return (InProject() && kit_.files.Exists(ProjectSystemPath(kit_.shared, name))) ||
         kit_.files.Exists(MasterSystemPath(kit_.shared, name));
}

}  // namespace tamo
