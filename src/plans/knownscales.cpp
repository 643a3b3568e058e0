#include "plans/knownscales.h"

#include <algorithm>

#include "common/columns.h"
#include "common/paths.h"
#include "plans/planname.h"

namespace tamo {

KeptSheetScale KnownScales::Sheet(const QString& path, int page) const {
  const QString project = TrimmedBlanks(kit_.shared.JobID);
  KeptSheetScale sheet;
  sheet.project = project.isEmpty() ? FolderOf(path) : project;
  sheet.plan = PlanNameOf(path);
  sheet.page = page;
  return sheet;
}

void KnownScales::Read() {
  if (read_) return;
  read_ = true;
  if (kit_.platform.configFolder.isEmpty()) return;
  scales_ = ReadSheetScales(kit_.files, kit_.platform.configFolder, kit_.shared.Separator);
}

std::optional<KnownScales::Scale> KnownScales::Of(const QString& path, int page) {
  Read();
  const KeptSheetScale sheet = Sheet(path, page);
  for (const KeptSheetScale& scale : scales_) {
    if (scale.SameSheet(sheet))
      return Scale{{scale.scale1, scale.scale2, scale.text5}, scale.checked};
  }
  return std::nullopt;
}

// The newest word on a sheet stands; the oldest ones go when there are too many.
void KnownScales::Note(const QString& path, int page, const Scale& scale) {
  Read();
  KeptSheetScale sheet = Sheet(path, page);
  if (sheet.plan.isEmpty()) return;
  std::erase_if(scales_, [&](const KeptSheetScale& other) { return other.SameSheet(sheet); });
  sheet.scale1 = scale.texts.scale1;
  sheet.scale2 = scale.texts.scale2;
  sheet.text5 = scale.texts.text5;
  sheet.checked = scale.checked;
  scales_.insert(scales_.begin(), sheet);
  if (scales_.size() > kMostSheetScales) scales_.resize(kMostSheetScales);
  if (kit_.platform.configFolder.isEmpty()) return;
  WriteSheetScales(kit_.files, kit_.platform.configFolder, kit_.shared.Separator, scales_);
}

}  // namespace tamo
