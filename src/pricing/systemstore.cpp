#include "pricing/systemstore.h"

#include "common/failure.h"
#include "common/paths.h"
#include "pricing/steps.h"

namespace tamo {

bool SystemStore::Read(const QString& name, SystemFile& system) {
  RequireFileName(name);
  QString text;
  int error = kPathNotFound;
  QString library;
  const int inLibrary = kit_.files.ReadText(MasterSystemPath(kit_.shared, name), library);
  if (InProject()) error = kit_.files.ReadText(ProjectSystemPath(kit_.shared, name), text);
  if (IsMissing(error)) {
    error = inLibrary;
    text = library;
  }
  read_ = name;
  library_ = library.isNull() ? QStringLiteral("") : library;
  if (IsMissing(error)) return false;
  // What was read of it earlier stands; the notice tells that it can't be read now.
  if (error != kNoError && text.isEmpty())
    throw RunTimeFailure(error, QStringLiteral("The system \"%1\" can't be read: %2. Nothing was "
                                               "changed, and nothing will be written over it.")
                                    .arg(name, ReadReasonText(error)));
  system = ReadSystemFile(text);
  if (!system.description.isEmpty()) RequireFileName(system.description);
  return true;
}

// The project's copy belongs to this program alone; the library's file may have been changed.
bool SystemStore::Write(const SystemFile& system) {
  const QString text = SystemFileText(system);
  const QString& name = system.description;
  const QString path = MasterSystemPath(kit_.shared, name);
  const bool known = name.compare(read_, Qt::CaseInsensitive) == 0;
  const int error = kit_.files.SaveText(path, text, FileKind::Record, known ? library_ : QString());
  read_ = name;
  library_ = text;
  if (error == kTheirsTaken) kit_.files.ReadText(path, library_);
  const int own =
      InProject() ? kit_.files.SaveText(ProjectSystemPath(kit_.shared, name), library_) : kNoError;
  return error != kTheirsTaken && own != kTheirsTaken;
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
