#include "plans/planbrowser.h"

#include "common/failure.h"
#include "common/paths.h"
#include "records/planpath.h"

namespace tamo {

PlanBrowser::PlanBrowser(const Kit& kit, OstControls& form) : kit_(kit), form_(form) {
  for (FileBrowser* browser : {&form_.Drive1, &form_.Dir1, &form_.File1})
    browser->PutInto(form_.Frame1);
  form_.Frame1.SetCaption(QStringLiteral("Plans"));
  form_.Frame1.Hide();
  form_.Drive1.onPick = [this] {
    form_.Dir1.SetFolder(form_.Drive1.Folder());
    form_.File1.SetFolder(form_.Drive1.Folder());
  };
  form_.Dir1.onPick = [this] { form_.File1.SetFolder(form_.Dir1.Folder()); };
}

void PlanBrowser::Save() {
  WritePlanPath(kit_.files, kit_.shared, {form_.Dir1.Folder(), form_.File1.Folder()});
}

void PlanBrowser::Load() {
  PlanPath path;
  if (ReadPlanPath(kit_.files, kit_.shared, path) != kNoError) return;
  Disk& disk = kit_.files.GetDisk();
  const auto take = [&](FileBrowser& browser, const QString& folder) {
    if (disk.IsFolder(NativePath(folder))) browser.SetFolder(NativePath(folder));
  };
  take(form_.Dir1, path.folders);
  take(form_.File1, path.plans);
}

void PlanBrowser::Start() {
  for (FileBrowser* browser : {&form_.Drive1, &form_.Dir1, &form_.File1})
    browser->SetFolder(kit_.shared.zDir);
  Load();
}

}  // namespace tamo
