#include "program/readagain.h"

#include "program/followers.h"
#include "records/namelists.h"

namespace tamo {
namespace {

constexpr int kSecondsBetweenTries = 15;

}  // namespace

void ReadAgain::Tick() {
  if (kit_.files.Notice().isEmpty()) {
    tried_ = {};
  } else {
    const QDateTime now = kit_.platform.clock.Now();
    if (!tried_.isValid()) tried_ = now;
    if (tried_.secsTo(now) < kSecondsBetweenTries) return;
    tried_ = now;
    kit_.files.TryAgain();
  }
  Run();
}

void ReadAgain::Run() {
  const qsizetype before = kit_.files.CountBehind();
  if (before == 0) return;
  ReadSystemNames();
  forms_.pricing.ReadAgain();
  forms_.rooms.Record().ReadAgain();
  forms_.areas.ReadAgain();
  forms_.bottomLine.ReadAgain();
  forms_.main.projects.ReadBehind();
  if (!kit_.shared.JobID.isEmpty() && forms_.ost.PlanNotes.Empty() &&
      kit_.files.IsBehind(ProjectFolder(kit_.shared).PlanNotes()))
    forms_.ost.LoadPlanNotes();
  if (kit_.files.CountBehind() < before) RefreshReport(forms_.reports);
}

// Three forms have the list of systems; the first reading of it brings it up to date.
void ReadAgain::ReadSystemNames() {
  if (!NamesAreBehind(kit_.files, kit_.shared, NameList::Systems)) return;
  forms_.pricing.LoadDescriptions();
  if (forms_.rooms.Visible()) forms_.rooms.LoadDescriptions();
  if (forms_.areas.Visible()) forms_.areas.LoadDescriptions();
}

}  // namespace tamo
