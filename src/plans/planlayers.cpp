#include "plans/planlayers.h"

#include <algorithm>

namespace tamo {

PlanLayers::PlanLayers(const Kit& kit, OstControls& form, PdfDraw& viewer, SheetBook& book)
    : kit_(kit), form_(form), viewer_(viewer), book_(book) {
  for (Control* control :
       std::initializer_list<Control*>{&form_.LayerWords, &form_.LayerList, &form_.ShowAllLayers})
    control->PutInto(form_.LayerFrame);
  form_.LayerFrame.SetCaption(QStringLiteral("Layers"));
  form_.LayerFrame.Hide();
  form_.LayerList.onTick = [this](int row) { Switch(row); };
  form_.LayerList.onKey = [this](Key& key) {
    if (!key.Is(Key::Name::Escape)) return;
    key.Drop();
    Close();
  };
  form_.ShowAllLayers.onClick = [this] { ShowAll(); };
}

void PlanLayers::Toggle() {
  if (form_.LayerFrame.Shown()) return Close();
  form_.Frame1.Hide();
  form_.GoToFrame.Hide();
  form_.BookmarkFrame.Hide();
  form_.LayerFrame.Show();
  Fill();
  if (!form_.LayerList.Empty() && form_.LayerList.Index() < 0) form_.LayerList.SetIndex(0);
  kit_.desk.Focus(form_.LayerList);
}

void PlanLayers::Close() {
  form_.LayerFrame.Hide();
  kit_.desk.Focus(form_.picPdfDraw);
}

QString PlanLayers::Words() const {
  if (book_.Sheets() == 0) return QStringLiteral("No plan is open.");
  if (!book_.Guided()) return QStringLiteral("The layers are being read.");
  if (book_.Guide().layers.empty())
    return QStringLiteral("This plan has no layers: it was printed without them.");
  return QStringLiteral("Space shows or hides a layer.");
}

void PlanLayers::Fill() {
  const std::vector<PlanLayer>& layers = book_.Guide().layers;
  rows_.clear();
  std::map<QString, size_t> row;
  QStringList names;
  for (size_t i = 0; i < layers.size(); ++i) {
    const auto [at, fresh] = row.try_emplace(layers[i].name, rows_.size());
    if (fresh) {
      rows_.emplace_back();
      names += layers[i].name.isEmpty() ? QStringLiteral("(without a name)") : layers[i].name;
    }
    rows_[at->second].push_back(i);
  }
  form_.LayerList.Refill(names);
  for (size_t at = 0; at < rows_.size(); ++at) {
    const bool shown = std::any_of(rows_[at].begin(), rows_[at].end(),
                                   [&](size_t layer) { return layers[layer].shown; });
    form_.LayerList.SetTicked(int(at), shown);
  }
  form_.LayerWords.SetCaption(Words());
  form_.ShowAllLayers.SetEnabled(!layers.empty());
}

// A layer that the plan's maker locked stays as he wants it.
void PlanLayers::Switch(int row) {
  if (row < 0 || size_t(row) >= rows_.size()) return;
  const bool shown = form_.LayerList.Ticked(row);
  std::vector<bool> all;
  for (const PlanLayer& layer : book_.Guide().layers) all.push_back(layer.shown);
  bool changed = false;
  for (const size_t layer : rows_[size_t(row)]) {
    if (book_.Guide().layers[layer].locked) continue;
    changed = changed || all[layer] != shown;
    all[layer] = shown;
  }
  if (changed) return book_.ShowLayers(all);
  form_.LayerList.SetTicked(row, !shown);
  form_.LayerWords.SetCaption(QStringLiteral("%1 is locked in this plan: it stays as it is.")
                                  .arg(form_.LayerList.Row(row)));
}

void PlanLayers::ShowAll() {
  std::vector<bool> all;
  for (const PlanLayer& layer : book_.Guide().layers) all.push_back(layer.shown || !layer.locked);
  book_.ShowLayers(all);
  Fill();
}

void PlanLayers::BookNews() {
  const SheetBook::LayersDone done = book_.TakeLayersDone();
  if (done == SheetBook::LayersDone::Shown) viewer_.ForgetPictures();
  if (done == SheetBook::LayersDone::Failed && say)
    say(QStringLiteral("The layers of this plan can't be switched: it is damaged."));
  if (form_.LayerFrame.Shown() && done == SheetBook::LayersDone::No) Fill();
}

}  // namespace tamo
