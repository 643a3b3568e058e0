#include "plans/plancompare.h"

#include <utility>

#include "common/chain.h"
#include "plans/pdfdraw.h"
#include "plans/planname.h"

namespace tamo {
namespace {

// Entries that wait for a plan to be laid over.
constexpr const char* kWhileComparing[] = {"CompareNext",     "ComparePoints",     "CompareLayer",
                                           "ComparePairNext", "ComparePairBefore", "CompareSwap",
                                           "CarryMarks",      "CarryAllMarks",     "CompareEnd"};

}  // namespace

PlanCompare::PlanCompare(const Kit& kit, OstControls& form, PdfDraw& viewer)
    : kit_(kit),
      form_(form),
      viewer_(viewer),
      comparison_(viewer.Compared()),
      carry_(kit, form, viewer) {
  form_.ComparePassword.PutInto(form_.ComparePanel);
  form_.CompareWords.PutInto(form_.ComparePanel);
  form_.ChangedPlaces.PutInto(form_.ComparePanel);
  form_.PlaceWords.PutInto(form_.ComparePanel);
  form_.ChangedPlaces.onSelect = [this] {
    if (form_.ChangedPlaces.Index() != comparison_.Place())
      comparison_.GoToPlace(form_.ChangedPlaces.Index());
  };
  OnEnter(form_.ComparePassword, [this] { Unlock(); });
  form_.ComparePassword.onKey = [this, enter = form_.ComparePassword.onKey](Key& key) {
    if (!key.Is(Key::Name::Escape)) return enter(key);
    key.Drop();
    comparison_.End();
    kit_.desk.Focus(form_.picPdfDraw);
  };
  BindMenu();
  comparison_.onChanged = [this] { kit_.desk.Dispatch([this] { Refresh(); }); };
  viewer_.onCompareKey = [this] { kit_.desk.Dispatch([this] { Choose(); }); };
  Refresh();
}

void PlanCompare::BindMenu() {
  const auto on = [this](const char* entry, std::function<void()> handler) {
    form_.FindMenu(QLatin1String(entry))->onClick = std::move(handler);
  };
  on("CompareWith", [this] { Choose(); });
  on("CompareNext", [this] { comparison_.StepPlace(1); });
  on("ComparePoints", [this] {
    comparison_.AskPoints();
    kit_.desk.Focus(form_.picPdfDraw);
  });
  on("CompareLayer", [this] { comparison_.NextLayer(); });
  on("ComparePairNext", [this] { comparison_.StepPair(1); });
  on("ComparePairBefore", [this] { comparison_.StepPair(-1); });
  on("CarryMarks", [this] { carry_.CarrySheet(); });
  on("CarryAllMarks", [this] { carry_.CarryAll(); });
  on("CompareSwap", [this] { comparison_.Swap(); });
  on("CompareEnd", [this] { comparison_.End(); });
}

void PlanCompare::Choose() {
  if (viewer_.ShowsFile(ProgramFile(kit_.shared, "Blank.pdf")))
    return form_.PlanProblem.SetCaption(
        QStringLiteral("Open a plan first: there is no sheet that could be compared."));
  const QString path = onChoosePlan ? onChoosePlan() : QString();
  if (path.isEmpty()) return;
  comparison_.Begin(path, password_);
  kit_.desk.Focus(form_.picPdfDraw);
}

void PlanCompare::Unlock() {
  password_ = form_.ComparePassword.Text();
  if (!locked_.isEmpty()) comparison_.Begin(std::exchange(locked_, QString()), password_);
  kit_.desk.Focus(form_.picPdfDraw);
}

void PlanCompare::SheetChanged() {
  comparison_.Follow();
}

// A row says where and what; the one in hand follows the keys.
void PlanCompare::ShowPlaces() {
  QStringList rows;
  const SheetsCompared* known = comparison_.On() ? comparison_.Known() : nullptr;
  for (size_t i = 0; known != nullptr && i < known->places.size(); ++i)
    rows += QStringLiteral("%1  %2").arg(i + 1).arg(comparison_.WordsOf(known->places[i]));
  if (rows != form_.ChangedPlaces.Rows()) form_.ChangedPlaces.SetRows(rows);
  if (form_.ChangedPlaces.Index() != comparison_.Place())
    form_.ChangedPlaces.SetIndex(comparison_.Place());
  const bool none = known == nullptr || comparison_.Place() < 0;
  form_.PlaceWords.SetCaption(
      none ? QString() : comparison_.WordsOf(known->places[size_t(comparison_.Place())]));
}

// Why nothing is compared stands where all problems of plans do.
void PlanCompare::Refresh() {
  const bool on = comparison_.On();
  const bool locked = comparison_.WantsPassword();
  const QString words = comparison_.Words();
  if (locked) locked_ = comparison_.Path();
  if (!on && words != said_) form_.PlanProblem.SetCaption(words);
  said_ = on ? QString() : words;
  form_.CompareWords.SetCaption(words);
  ShowPlaces();
  form_.ComparePanel.SetShown(on || locked);
  if (!locked) form_.ComparePassword.Clear();
  const bool asks = locked && !form_.ComparePassword.Shown();
  form_.ComparePassword.SetShown(locked);
  for (const char* entry : kWhileComparing) form_.FindMenu(QLatin1String(entry))->SetEnabled(on);
  if (locked) form_.FindMenu(QStringLiteral("CompareEnd"))->SetEnabled(true);
  // Whoever chose the plan types its password next, if nothing else was begun meanwhile.
  if (asks && form_.picPdfDraw.HasFocus()) kit_.desk.Focus(form_.ComparePassword);
}

}  // namespace tamo
