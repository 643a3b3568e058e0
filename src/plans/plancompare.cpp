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
                                           "CarryMarks",      "CompareEnd"};

QString Counted(qsizetype count, const char* one, const char* many) {
  return count == 1 ? QStringLiteral("1 ") + QLatin1String(one)
                    : QStringLiteral("%1 ").arg(count) + QLatin1String(many);
}

QString Question(const CarriedMarks& carried) {
  constexpr qsizetype kMostNamed = 10;
  QString words = Counted(qsizetype(carried.marks.size()), "mark of the old sheet comes",
                          "marks of the old sheet come") +
                  QStringLiteral(" onto this one.");
  const qsizetype changed = carried.changed.size();
  if (changed > 0) {
    words += QLatin1Char(' ') + Counted(changed, "of them stands", "of them stand") +
             QStringLiteral(" where the drawing has changed, and will say so: ") +
             carried.changed.mid(0, kMostNamed).join(QStringLiteral("; "));
    if (changed > kMostNamed) words += QStringLiteral("; and %1 more").arg(changed - kMostNamed);
    words += QLatin1Char('.');
  }
  if (carried.there > 0)
    words += QLatin1Char(' ') + Counted(carried.there, "is here already.", "are here already.");
  if (carried.outside > 0)
    words += QLatin1Char(' ') + Counted(carried.outside, "lies off this sheet and stays behind.",
                                        "lie off this sheet and stay behind.");
  return words + QStringLiteral(" Carry them over?");
}

}  // namespace

PlanCompare::PlanCompare(const Kit& kit, OstControls& form, PdfDraw& viewer)
    : kit_(kit), form_(form), viewer_(viewer), comparison_(viewer.Compared()) {
  form_.ComparePassword.PutInto(form_.ComparePanel);
  form_.CompareWords.PutInto(form_.ComparePanel);
  form_.ChangedPlaces.PutInto(form_.ComparePanel);
  form_.PlaceWords.PutInto(form_.ComparePanel);
  form_.ChangedPlaces.onSelect = [this] {
    if (form_.ChangedPlaces.Index() != comparison_.Place())
      comparison_.GoToPlace(form_.ChangedPlaces.Index());
  };
  OnEnter(form_.ComparePassword, [this] { Unlock(); });
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
  on("CarryMarks", [this] { CarryMarks(); });
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

// Nothing comes onto the sheet, and nothing is saved, before the question is answered.
void PlanCompare::CarryMarks() {
  QString why;
  const CarriedMarks carried = comparison_.Carried(why);
  if (carried.marks.empty()) return form_.PlanProblem.SetCaption(why);
  if (!kit_.shared.ReadOnly.isEmpty()) return form_.PlanProblem.SetCaption(kit_.shared.ReadOnly);
  if (!kit_.platform.messages.Ask(Question(carried)) || !viewer_.PutMarks(carried.marks)) return;
  form_.PlanProblem.SetCaption(QString());
  if (onMarksCarried) onMarksCarried();
}

void PlanCompare::SheetChanged() {
  comparison_.Follow();
}

// A row says where and what; the one in hand follows the keys.
void PlanCompare::ShowPlaces() {
  QStringList rows;
  const SheetsCompared* known = comparison_.On() ? comparison_.Known() : nullptr;
  for (size_t i = 0; known != nullptr && i < known->places.size(); ++i)
    rows += QStringLiteral("%1  %2").arg(i + 1).arg(known->places[i].words);
  if (rows != form_.ChangedPlaces.Rows()) form_.ChangedPlaces.SetRows(rows);
  if (form_.ChangedPlaces.Index() != comparison_.Place())
    form_.ChangedPlaces.SetIndex(comparison_.Place());
  const bool none = known == nullptr || comparison_.Place() < 0;
  form_.PlaceWords.SetCaption(none ? QString() : known->places[size_t(comparison_.Place())].words);
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
  form_.ComparePassword.SetShown(locked);
  for (const char* entry : kWhileComparing) form_.FindMenu(QLatin1String(entry))->SetEnabled(on);
}

}  // namespace tamo
