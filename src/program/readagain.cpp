#include "program/readagain.h"

#include "program/followers.h"
#include "records/namelists.h"

namespace tamo {

void ReadAgain::Run() {
  if (!kit_.files.AnyIsBehind()) return;
  ReadSystemNames();
  forms_.pricing.ReadAgain();
  forms_.rooms.Record().ReadAgain();
  forms_.areas.ReadAgain();
  forms_.bottomLine.ReadAgain();
  forms_.main.projects.ReadBehind();
  if (!kit_.shared.JobID.isEmpty() && forms_.ost.PlanNotes.Empty() &&
      kit_.files.IsBehind(ProjectFolder(kit_.shared).PlanNotes()))
    forms_.ost.LoadPlanNotes();
  RefreshReport(forms_.reports);
}

// Three forms have the list of systems; the first reading of it brings it up to date.
void ReadAgain::ReadSystemNames() {
  if (!NamesAreBehind(kit_.files, kit_.shared, NameList::Systems)) return;
  forms_.pricing.LoadDescriptions();
  if (forms_.rooms.Visible()) forms_.rooms.LoadDescriptions();
  if (forms_.areas.Visible()) forms_.areas.LoadDescriptions();
}

}  // namespace tamo
