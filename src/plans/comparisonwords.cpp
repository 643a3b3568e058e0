#include <cmath>

#include "common/paths.h"
#include "plans/comparison.h"
#include "plans/pdfdraw.h"

// What a comparison says, and the keys it takes.

namespace tamo {
namespace {

QString LayerInWords(OverlayLayer layer, bool swapped) {
  if (layer == OverlayLayer::Both) return {};
  return (layer == OverlayLayer::Old) != swapped ? QStringLiteral(" The old sheet alone is shown.")
                                                 : QStringLiteral(" The new sheet alone is shown.");
}

// "sheet A-101 (page 2 of 7)".
QString SheetInWords(const QString& number, int page, int pages) {
  const QString place = QStringLiteral("page %1 of %2").arg(page).arg(pages);
  return number.isEmpty() ? place : QStringLiteral("sheet %1 (%2)").arg(number, place);
}

// How well the sheets lie, in what size and turn.
QString LieInWords(const SheetsCompared& known) {
  const SheetAlignment& lie = known.alignment;
  const int agreed = static_cast<int>(std::lround(lie.agreed * 100));
  if (!lie.sure && !lie.byHand) {
    const QString why = lie.agreed > 0
                            ? QStringLiteral("only %1 per cent of their lines agree").arg(agreed)
                            : QStringLiteral("they have no lines by which that could be done");
    return QStringLiteral(
               "They could not be laid over each other by themselves: %1. Give two "
               "points on each of them (key 2).")
        .arg(why);
  }
  QString words = lie.byHand ? QStringLiteral("They lie as the two points say")
                             : QStringLiteral("They lie on each other by themselves");
  if (lie.agreed > 0) words += QStringLiteral(", with %1 per cent of their lines").arg(agreed);
  const int size = static_cast<int>(std::lround(lie.fit.Size() * 100));
  const int turn = static_cast<int>(std::lround(lie.fit.Turn()));
  if (size != 100) words += QStringLiteral("; the old one at %1 per cent").arg(size);
  if (turn != 0) words += QStringLiteral("; the old one turned by %1 degrees").arg(turn);
  return words + QLatin1Char('.');
}

QString ChangesInWords(const SheetsCompared& known) {
  if (!known.alignment.sure && !known.alignment.byHand) return {};
  if (!known.looked) return QStringLiteral("Changed places are being looked for.");
  const auto places = static_cast<int>(known.places.size());
  if (places == 0) return QStringLiteral("No changes.");
  if (places == 1) return QStringLiteral("1 changed place.");
  return QStringLiteral("%1 changed places.").arg(places);
}

// Which sheets of the two plans lie over each other, and why these.
QString PairInWords(const SheetsCompared& known, int pages, const QString& file, int oldPages) {
  const QString now = SheetInWords(known.nowNumber, known.page, pages);
  if (known.oldPage == 0)
    return QStringLiteral(
               "No sheet of %1 has the number %2: Ctrl+Page Down lays its sheets over "
               "this one by hand.")
        .arg(file, known.nowNumber);
  const QString old = SheetInWords(known.oldNumber, known.oldPage, oldPages);
  const QString by = known.byUser     ? QStringLiteral("chosen by hand")
                     : known.byNumber ? QStringLiteral("paired by the sheet number")
                                      : QStringLiteral("paired by their pages");
  return QStringLiteral("%1 of this plan over %2 of %3, %4.").arg(now, old, file, by);
}

}  // namespace

QString Comparison::Words() const {
  if (!On()) return problem_;
  if (former_.sizes.empty())
    return QStringLiteral("%1 is being opened.").arg(FileNameOf(former_.path));
  if (points_.Asked()) return points_.Words();
  if (searched_ > 0)
    return QStringLiteral("The sheet that belongs to this one is looked for: %1 of %2 are read.")
        .arg(searched_)
        .arg(Pages());
  const SheetsCompared* known = Known();
  if (known == nullptr) return QStringLiteral("The two sheets are being compared.");
  QString words = PairInWords(*known, viewer_.PageCount(), FileNameOf(former_.path), Pages());
  words[0] = words[0].toUpper();
  if (known->aligned) {
    words += QLatin1Char(' ') + LieInWords(*known);
    for (const QString& more : {ChangesInWords(*known), known->limits}) {
      if (!more.isEmpty()) words += QLatin1Char(' ') + more;
    }
  }
  return words + LayerInWords(pictures_.Layer(), swapped_);
}

bool Comparison::TakeKey(const PlanStroke& stroke) {
  if (stroke.key == PlanKey::Compare) {
    if (viewer_.onCompareKey) viewer_.onCompareKey();
    return true;
  }
  if (!On() && !(WantsPassword() && stroke.key == PlanKey::Escape)) return false;
  const int by = stroke.shift || stroke.key == PlanKey::PairBefore ? -1 : 1;
  switch (stroke.key) {
    case PlanKey::No:
      if (viewer_.Same().Asking()) return false;
      StepPlace(by);
      return true;
    case PlanKey::TwoPoints:
      AskPoints();
      return true;
    case PlanKey::Layer:
      NextLayer();
      return true;
    case PlanKey::SwapSides:
      Swap();
      return true;
    case PlanKey::PairNext:
    case PlanKey::PairBefore:
      StepPair(by);
      return true;
    case PlanKey::Escape:
      return TakeEscape();
    default:
      return false;
  }
}

// What is in work goes first, then the points that were asked for, then the other plan.
bool Comparison::TakeEscape() {
  if (viewer_.WorkFrom() || viewer_.CheckNext() || viewer_.Box().Asked() || viewer_.Box().Drawn() ||
      viewer_.Same().Asking() || viewer_.Same().Busy() || viewer_.Hand().Chosen() != nullptr)
    return false;
  if (points_.Asked()) {
    EndPoints();
    Tell();
  } else {
    End();
  }
  return true;
}

}  // namespace tamo
