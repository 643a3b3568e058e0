#include "pricing/markups.h"

#include "common/failure.h"
#include "common/textlines.h"

namespace tamo {

std::array<QString*, 12> Markups::InFileOrder() {
  return {&MOH, &MTX, &MMU, &LOH, &LTX, &LMU, &BLOH, &BLTX, &BLMU, &MIOH, &MITX, &MIMU};
}

QString MasterMarkupsPath(const SharedFields& shared) {
  return shared.DataPath + QStringLiteral("Markups.tamo");
}

QString ProjectMarkupsPath(const SharedFields& shared) {
  return shared.ProjectPath() + QStringLiteral("Markups.tamo");
}

int LoadMarkups(Files& files, const SharedFields& shared, Markups& into) {
  QStringList lines;
  int error = kFileNotFound;
  if (!shared.JobID.isEmpty()) error = files.ReadLines(ProjectMarkupsPath(shared), lines);
  if (error != kNoError) error = files.ReadLines(MasterMarkupsPath(shared), lines);
  if (error != kNoError) return error;
  LineReader reader(lines);
  for (QString* text : into.InFileOrder()) reader.Read(*text);
  return kNoError;
}

int SaveMarkups(Files& files, const SharedFields& shared, Markups markups) {
  QStringList lines;
  for (const QString* text : markups.InFileOrder()) lines += *text;
  return files.SaveLines(
      shared.JobID.isEmpty() ? MasterMarkupsPath(shared) : ProjectMarkupsPath(shared), lines);
}

}  // namespace tamo
