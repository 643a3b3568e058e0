#include "records/markupsfile.h"

#include "common/failure.h"
#include "common/textlines.h"

namespace tamo {

std::array<QString*, 12> Markups::InFileOrder() {
  return {&MOH, &MTX, &MMU, &LOH, &LTX, &LMU, &BLOH, &BLTX, &BLMU, &MIOH, &MITX, &MIMU};
}

int LoadMarkups(Files& files, const SharedFields& shared, Markups& into) {
  QStringList lines;
  int error = kFileNotFound;
  if (!shared.JobID.isEmpty()) error = files.ReadLines(ProjectFolder(shared).Markups(), lines);
  if (IsMissing(error)) error = files.ReadLines(DataFolder(shared).Markups(), lines);
  if (IsMissing(error)) return error;
  // No project shows the markups of another, or of the library, for its own that can't be read.
  if (error != kNoError && lines.isEmpty()) into = Markups();
  LineReader reader(lines);
  for (QString* text : into.InFileOrder()) reader.Read(*text);
  return error;
}

bool MarkupsAreBehind(Files& files, const SharedFields& shared) {
  return files.IsBehind(DataFolder(shared).Markups()) ||
         (!shared.JobID.isEmpty() && files.IsBehind(ProjectFolder(shared).Markups()));
}

int SaveMarkups(Files& files, const SharedFields& shared, Markups markups) {
  QStringList lines;
  for (const QString* text : markups.InFileOrder()) lines += *text;
  return files.SaveLines(
      shared.JobID.isEmpty() ? DataFolder(shared).Markups() : ProjectFolder(shared).Markups(),
      lines);
}

}  // namespace tamo
