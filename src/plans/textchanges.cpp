#include "plans/textchanges.h"

#include <algorithm>
#include <cmath>

#include "plans/lettergrid.h"
#include "plans/pagelines.h"

namespace tamo {
namespace {

constexpr size_t kMostLines = 3000;  // that are held against each other, of each sheet
constexpr qsizetype kLongest = 60;   // letters of a line that are named
constexpr double kNear = 0.6;        // of the letters' size between two lines of one place

// A line in which letters differ.
struct Touched {
  QString text;
  QString plain;  // without blanks
  PageBox box;    // on the new sheet
  double size = 0;
  bool own = false;  // letters of it differ, and not only some beside it
  bool told = false;
};

PageContent SeenTexts(const PageContent& content) {
  PageContent seen;
  seen.size = content.size;
  for (const TextPiece& piece : content.texts) {
    if (!piece.hidden) seen.texts.push_back(piece);
  }
  return seen;
}

QString Plain(const QString& text) {
  QString plain;
  for (const QChar c : text) {
    if (!c.isSpace()) plain += c;
  }
  return plain;
}

std::vector<Touched> TouchedLines(const PageContent& content, const SheetFit& fit,
                                  const LetterGrid& different, const LetterGrid& others) {
  std::vector<Touched> touched;
  for (const PageTextLine& line : TextLinesOf(SeenTexts(content))) {
    const PageBox box = FittedBox(fit, line.box);
    if (touched.size() >= kMostLines) break;
    const double by = line.size * fit.Size();
    const bool own = different.AnyIn(box);
    // `18'` that became `8'` lost a letter and gained none.
    if (!own && !others.AnyIn({box.left - by, box.top, box.right + by, box.bottom})) continue;
    touched.push_back({line.text.simplified(), Plain(line.text), box, by, own});
  }
  return touched;
}

LetterGrid Different(const std::vector<SeenLetter>& letters,
                     const std::vector<SeenLetter>& others) {
  LetterGrid all;
  for (const SeenLetter& letter : others) all.Add(letter);
  LetterGrid different;
  for (const SeenLetter& letter : letters) {
    if (!all.Has(letter)) different.Add(letter);
  }
  return different;
}

// The line cut to what differs from the other one, where it is long.
QString Named(const QString& text, const QString& other) {
  if (text.size() <= kLongest) return text;
  qsizetype same = 0;
  while (same < std::min(text.size(), other.size()) && text[same] == other[same]) ++same;
  const qsizetype begin = std::max<qsizetype>(0, std::min(same - 12, text.size() - kLongest));
  QString part = text.mid(begin, kLongest);
  if (begin > 0) part.prepend(QStringLiteral("..."));
  if (begin + kLongest < text.size()) part += QStringLiteral("...");
  return part;
}

PageBox Around(PageBox box, const PageBox& other) {
  box.Take({other.left, other.top});
  box.Take({other.right, other.bottom});
  return box;
}

// How much of the smaller box lies in the other one, both a little larger; 0 when they are apart.
double Together(const Touched& a, const Touched& b) {
  const double by = kNear * std::min(a.size, b.size) / 2;
  const PageBox one = {a.box.left - by, a.box.top - by, a.box.right + by, a.box.bottom + by};
  const PageBox other = {b.box.left - by, b.box.top - by, b.box.right + by, b.box.bottom + by};
  const PageBox both = one.Cut(other);
  if (both.Empty()) return 0;
  const double smaller = std::min(one.Width() * one.Height(), other.Width() * other.Height());
  return both.Width() * both.Height() / smaller;
}

void AddBecame(std::vector<Touched>& old, std::vector<Touched>& now,
               std::vector<ChangedPlace>& places) {
  constexpr double kSamePlace = 0.25;
  for (Touched& line : now) {
    Touched* best = nullptr;
    double most = kSamePlace;
    for (Touched& other : old) {
      if (other.told) continue;
      const double together = Together(line, other);
      if (together <= most) continue;
      most = together;
      best = &other;
    }
    if (best == nullptr) continue;
    best->told = line.told = true;
    if (best->plain == line.plain) continue;  // set in other letters, or a little aside
    const QString was = Named(best->text, line.text);
    const QString is = Named(line.text, best->text);
    const QString became = QStringLiteral("%1 became %2");
    places.push_back({ChangedPlace::Kind::Changed, Around(line.box, best->box), became.arg(was, is),
                      became.arg(is, was)});
  }
}

void AddMoved(std::vector<Touched>& old, std::vector<Touched>& now,
              std::vector<ChangedPlace>& places) {
  for (Touched& line : now) {
    if (line.told || !line.own) continue;
    const auto same = std::find_if(old.begin(), old.end(), [&](const Touched& other) {
      return !other.told && other.own && other.plain == line.plain;
    });
    if (same == old.end()) continue;
    same->told = line.told = true;
    const QString moved = QStringLiteral("Moved: %1").arg(Named(line.text, {}));
    places.push_back({ChangedPlace::Kind::Changed, line.box, moved, moved});
  }
}

void AddRest(const std::vector<Touched>& lines, ChangedPlace::Kind kind,
             std::vector<ChangedPlace>& places) {
  const QString gone = QStringLiteral("Gone: ");
  const QString come = QStringLiteral("New: ");
  const bool went = kind == ChangedPlace::Kind::Gone;
  for (const Touched& line : lines) {
    if (line.told || !line.own) continue;
    const QString text = Named(line.text, {});
    places.push_back({kind, line.box, (went ? gone : come) + text, (went ? come : gone) + text});
  }
}

}  // namespace

PageBox FittedBox(const SheetFit& fit, const PageBox& box) {
  PageBox fitted = NoBox();
  for (const PagePoint corner : {PagePoint{box.left, box.top}, PagePoint{box.right, box.top},
                                 PagePoint{box.left, box.bottom}, PagePoint{box.right, box.bottom}})
    fitted.Take(fit.To(corner));
  return fitted;
}

std::vector<ChangedPlace> TextChangesOf(const PageContent& old, const PageContent& now,
                                        const SheetFit& fit) {
  const std::vector<SeenLetter> oldLetters = LettersOf(old, fit);
  const std::vector<SeenLetter> nowLetters = LettersOf(now, SheetFit());
  const LetterGrid goneLetters = Different(oldLetters, nowLetters);
  const LetterGrid comeLetters = Different(nowLetters, oldLetters);
  std::vector<Touched> gone = TouchedLines(old, fit, goneLetters, comeLetters);
  std::vector<Touched> come = TouchedLines(now, SheetFit(), comeLetters, goneLetters);
  std::vector<ChangedPlace> places;
  AddBecame(gone, come, places);
  AddMoved(gone, come, places);
  AddRest(gone, ChangedPlace::Kind::Gone, places);
  AddRest(come, ChangedPlace::Kind::Come, places);
  return places;
}

}  // namespace tamo
