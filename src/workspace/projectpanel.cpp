#include "workspace/projectpanel.h"

#include <algorithm>

#include "common/chain.h"
#include "common/desk.h"

namespace tamo {

ProjectPanel::ProjectPanel(Form& owner) : form(owner) {
  Notes.multiLine = true;
  for (TextField* field : Fields()) field->PutInto(JobNFOFrame);
  NumberMissing.PutInto(JobNFOFrame);
  NumberMissing.Hide();
  Command1.PutInto(JobNFOFrame);
  JobNFOFrame.Hide();
  JobsList.Hide();
  JobsList.takesFocus = false;
  BindChain();
}

void ProjectPanel::BindChain() {
  const auto chain = Fields();
  for (size_t i = 0; i < chain.size(); ++i) {
    TextField* field = chain[i];
    TextField* next = chain[(i + 1) % chain.size()];
    OnFocusSelectAll(*field);
    OnEnter(*field, field == &JobName ? Keys::FileName : Keys::Any, [this, field, next] {
      field->ClearSelection();
      form.GetDesk().Focus(*next);
    });
  }
  Notes.onKey = [this, chained = Notes.onKey](Key& key) {
    if (key.Is(Key::Name::LineFeed)) {
      key.Drop();
      Notes.ReplaceSelection(QStringLiteral("\r\n"));
    }
    chained(key);
  };
}

bool ProjectPanel::HoldsNameOnly() {
  const auto fields = Fields();
  return std::all_of(fields.begin(), fields.end(), [this](const TextField* field) {
    return field == &JobName || field->Empty();
  });
}

}  // namespace tamo
