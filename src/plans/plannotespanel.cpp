#include "plans/plannotespanel.h"

#include "records/plannotes.h"

namespace tamo {

PlanNotesPanel::PlanNotesPanel(const Kit& kit, OstControls& form, PdfDraw& viewer)
    : kit_(kit), form_(form), viewer_(viewer) {
  form_.PlanNotes.multiLine = true;
  form_.PlanNotes.Hide();
  form_.PlanNotes.onKey = [this](Key& key) {
    if (key.IsEnter()) Save();
  };
  form_.Command3.onClick = [this] { Toggle(); };
}

void PlanNotesPanel::Toggle() {
  if (!form_.PlanNotes.Shown()) {
    form_.PlanNotes.Show();
    kit_.desk.Focus(form_.PlanNotes);
    return;
  }
  form_.PlanNotes.Hide();
  viewer_.BringToFront();
  kit_.desk.Focus(form_.picPdfDraw);
}

void PlanNotesPanel::Load() {
  QString notes;
  if (!kit_.shared.JobID.isEmpty()) ReadPlanNotes(kit_.files, kit_.shared, notes);
  form_.PlanNotes.SetText(notes);
}

void PlanNotesPanel::Save() {
  if (kit_.shared.JobID.isEmpty() || !kit_.shared.ReadOnly.isEmpty()) return;
  WritePlanNotes(kit_.files, kit_.shared, form_.PlanNotes.Text());
}

}  // namespace tamo
