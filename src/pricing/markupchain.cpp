#include "pricing/markupchain.h"

#include "common/chain.h"
#include "pricing/steps.h"

namespace tamo {

MarkupChain::MarkupChain(const Kit& kit, MarkupControls& controls, MaterialControls& materials,
                         SystemControls& system, LaborPrice& price, ReportRefresh& refresh)
    : kit_(kit),
      c_(controls),
      materials_(materials),
      system_(system),
      price_(price),
      refresh_(refresh) {
  for (size_t i = 0; i < c_.MarkupRing.size(); ++i) {
    TextField* next = c_.MarkupRing[(i + 1) % c_.MarkupRing.size()];
    OnEnter(*c_.MarkupRing[i], [this, next] {
      Store();
      kit_.desk.Focus(*next);
      refresh_.PrintReport();
    });
    SayTakenNumber(*c_.MarkupRing[i]);
    OnFocusSelectAll(*c_.MarkupRing[i]);
  }
  // The labor markup alone is saved when it is entered, too. A test holds it.
  OnFocusSelectAll(c_.LMU, [this] { SaveMarkups(); });
  c_.ExitMarkups.onClick = [this] {
    c_.MarkupsFrame.Hide();
    if (system_.FramePricing.Shown()) {
      GoBack();
    } else {
      c_.form.Hide();
    }
  };
}

// The field that was left goes with its frame; the system beside it goes on.
void MarkupChain::GoBack() {
  if (kit_.desk.Focused() != nullptr) return;
  kit_.desk.Focus(materials_.Material.Usable() ? materials_.Material : system_.Description);
}

int MarkupChain::LoadMarkups() {
  Markups texts = c_.MarkupTexts();
  const int error = tamo::LoadMarkups(kit_.files, kit_.shared, texts);
  c_.PutMarkupTexts(texts);
  return error;
}

void MarkupChain::SaveMarkups() {
  Store();
  refresh_.PrintReport();
}

void MarkupChain::Store() {
  tamo::SaveMarkups(kit_.files, kit_.shared, c_.MarkupTexts());
  if (materials_.LandMFrame.Shown()) price_.MakeEUP();
}

void MarkupChain::ToggleFrame() {
  refresh_.DisableProjectFileEntry();
  Toggle(c_.MarkupsFrame);
  if (!c_.MarkupsFrame.Shown()) return GoBack();
  LoadMarkups();
  FocusByCommand(kit_.desk, c_.MOH);
}

}  // namespace tamo
