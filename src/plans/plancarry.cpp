#include "plans/plancarry.h"

#include <set>

#include "plans/pdfdraw.h"

namespace tamo {
namespace {

QString Counted(qsizetype count, const char* one, const char* many) {
  return count == 1 ? QStringLiteral("1 ") + QLatin1String(one)
                    : QStringLiteral("%1 ").arg(count) + QLatin1String(many);
}

QString Question(const CarriedMarks& carried) {
  constexpr qsizetype kMostNamed = 10;
  const qsizetype changed = carried.changed.size();
  QString words;
  if (changed > 0) {
    words = QLatin1Char(' ') + Counted(changed, "of them stands", "of them stand") +
            QStringLiteral(" where the drawing has changed, and will say so: ") +
            carried.changed.mid(0, kMostNamed).join(QStringLiteral("; "));
    if (changed > kMostNamed) words += QStringLiteral("; and %1 more").arg(changed - kMostNamed);
    words += QLatin1Char('.');
  }
  if (carried.there > 0)
    words += QLatin1Char(' ') + Counted(carried.there, "is here already.", "are here already.");
  if (carried.outside > 0)
    words += QLatin1Char(' ') + Counted(carried.outside, "lies off the new sheet and stays behind.",
                                        "lie off the new sheet and stay behind.");
  return words + QStringLiteral(" Carry them over?");
}

bool Lies(const SheetsCompared& known) {
  return known.oldPage > 0 && (known.alignment.sure || known.alignment.byHand);
}

QString NameOf(const SheetsCompared& known) {
  return known.nowNumber.isEmpty() ? QStringLiteral("page %1").arg(known.page)
                                   : QStringLiteral("sheet %1").arg(known.nowNumber);
}

void AddTo(CarriedMarks& all, const CarriedMarks& more, const SheetsCompared& of) {
  all.marks.insert(all.marks.end(), more.marks.begin(), more.marks.end());
  for (const QString& changed : more.changed)
    all.changed += QStringLiteral("%1, %2").arg(NameOf(of), changed);
  all.there += more.there;
  all.outside += more.outside;
}

}  // namespace

PlanCarry::PlanCarry(const Kit& kit, OstControls& form, PdfDraw& viewer)
    : kit_(kit), form_(form), viewer_(viewer), comparison_(viewer.Compared()) {}

void PlanCarry::Offer(const CarriedMarks& carried, const QString& where) {
  if (carried.marks.empty()) {
    const char* why = carried.there > 0 ? "All marks of the old plan are on this one."
                      : carried.outside > 0
                          ? "The marks of the old plan all lie off the new sheets."
                          : "The old plan holds no marks there: compare with its marked "
                            "copy.";
    return form_.PlanProblem.SetCaption(QLatin1String(why));
  }
  const QString come = Counted(qsizetype(carried.marks.size()), "mark of the old plan comes onto",
                               "marks of the old plan come onto");
  if (!kit_.platform.messages.Ask(come + where + Question(carried)) || !viewer_.MayMark()) return;
  viewer_.TakeOver(carried.marks);
  form_.PlanProblem.SetCaption(QString());
  if (onCarried) onCarried();
}

QString PlanCarry::WhyNot() const {
  if (!kit_.shared.ReadOnly.isEmpty()) return kit_.shared.ReadOnly;
  const SheetsCompared* known = comparison_.On() ? comparison_.Known() : nullptr;
  if (known == nullptr || !known->looked)
    return QStringLiteral("The two sheets are still being compared.");
  return {};
}

void PlanCarry::CarrySheet() {
  const QString why = WhyNot();
  if (!why.isEmpty()) return form_.PlanProblem.SetCaption(why);
  const SheetsCompared& known = *comparison_.Known();
  if (!Lies(known))
    return form_.PlanProblem.SetCaption(
        QStringLiteral("Lay the two sheets over each other first: by two points (key 2)."));
  Offer(CarryMarks(comparison_.OldMarks(), known, viewer_.SizeOfPage(known.page),
                   viewer_.MarksAsDrawn()),
        QStringLiteral(" this sheet."));
}

void PlanCarry::CarryAll() {
  const QString why = WhyNot();
  if (!why.isEmpty()) return form_.PlanProblem.SetCaption(why);
  CarryTask task;
  task.common = comparison_.Task();
  task.nowSizes = viewer_.Sizes();
  task.nowSheets = std::make_shared<SheetPairs>(task.common.now, viewer_.PageCount());
  std::set<int> pages;
  for (const Mark& mark : comparison_.OldMarks()) pages.insert(mark.page);
  task.oldPages.assign(pages.begin(), pages.end());
  form_.PlanProblem.SetCaption(QStringLiteral("The sheets with marks are being compared."));
  comparison_.Jobs().PostLasting([this, task](CancelFlag& cancel, const SheetJobs::TellNews& tell) {
    const SheetsToCarry sheets = CompareMarkedSheets(task, cancel, [&](int done) {
      tell([this, done, all = task.oldPages.size()] {
        form_.PlanProblem.SetCaption(
            QStringLiteral("%1 of %2 sheets with marks are compared.").arg(done).arg(all));
      });
    });
    if (!cancel.Cancelled())
      tell([this, sheets] { kit_.desk.Dispatch([&] { OfferAll(sheets); }); });
  });
}

void PlanCarry::OfferAll(const SheetsToCarry& sheets) {
  CarriedMarks all;
  QStringList behind = sheets.alone;
  for (const SheetsCompared& known : sheets.sheets) {
    if (!Lies(known)) {
      behind += NameOf(known);
      continue;
    }
    AddTo(all,
          CarryMarks(comparison_.OldMarks(), known, viewer_.SizeOfPage(known.page),
                     viewer_.MarksAsDrawn()),
          known);
  }
  QString where = QStringLiteral(" %1 sheets.").arg(sheets.sheets.size());
  if (sheets.sheets.size() == 1) where = QStringLiteral(" 1 sheet.");
  if (!behind.isEmpty())
    where += QStringLiteral(
                 " Those of %1 stay behind: no new sheet is it, or "
                 "it can't be laid over.")
                 .arg(behind.join(QStringLiteral(", ")));
  form_.PlanProblem.SetCaption(QString());
  Offer(all, where);
}

}  // namespace tamo
