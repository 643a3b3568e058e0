#include "schedule/readingproblem.h"

#include <algorithm>
#include <cmath>

namespace tamo {
namespace {

constexpr qsizetype kMostLetters = 200000;  // a schedule of 1,000 rooms has half of them
constexpr double kHeadsHigh = 60;           // points from a table's top in which its heads stand
constexpr double kBeyond = 12;              // points that a table's rules go on outside of a box

QString Where(bool boxed) {
  return boxed ? QStringLiteral("the box") : QStringLiteral("this sheet");
}

LetterCounts LettersIn(const PageContent& page, const PageBox& box) {
  std::vector<TextPiece> own;
  std::copy_if(page.texts.begin(), page.texts.end(), std::back_inserter(own),
               [&box](const TextPiece& piece) {
                 return Holds(box, (piece.box.left + piece.box.right) / 2,
                              (piece.box.top + piece.box.bottom) / 2);
               });
  return CountLetters(own);
}

bool PictureOver(const PageContent& page, const PageBox& box) {
  return std::any_of(page.pictures.begin(), page.pictures.end(), [&box](const PicturePiece& one) {
    const bool picture =
        one.kind == PicturePiece::Kind::Picture || one.kind == PicturePiece::Kind::Stencil;
    if (!picture) return false;
    const PageBox shared = one.box.Cut(box);
    return !shared.Empty() && shared.Width() * shared.Height() > 0.3 * box.Width() * box.Height();
  });
}

bool PathsIn(const PageContent& page, const PageBox& box) {
  return std::any_of(page.paths.begin(), page.paths.end(), [&box](const PathPiece& path) {
    return Holds(box, (path.box.left + path.box.right) / 2, (path.box.top + path.box.bottom) / 2);
  });
}

QString NoText(const PageContent& page, const PageBox& box, bool boxed) {
  if (PictureOver(page, box)) {
    return QStringLiteral(
               "There is no text in %1: it is a scanned picture. Type the schedule, or "
               "ask for the drawing as the architect's program wrote it.")
        .arg(Where(boxed));
  }
  if (PathsIn(page, box)) {
    return QStringLiteral(
               "There is no text in %1, only lines: what looks like text may be drawn "
               "as lines. Ask for a drawing with its text as text.")
        .arg(Where(boxed));
  }
  return QStringLiteral("There is nothing in %1. Draw the box around a room finish schedule.")
      .arg(Where(boxed));
}

QString KindText(TableKind kind) {
  switch (kind) {
    case TableKind::Finish:
      return QStringLiteral("a room finish schedule");
    case TableKind::Door:
      return QStringLiteral("a door schedule");
    case TableKind::Window:
      return QStringLiteral("a window schedule");
    case TableKind::Legend:
      return QStringLiteral("a legend of finishes or materials");
    case TableKind::Matrix:
      return QStringLiteral("a schedule of marks under the finishes, which can't be read");
    default:
      return QStringLiteral("a table of another kind");
  }
}

// The words of the heads' lowest line beside the left (or right) side of a box, in order.
QStringList HeadWordsBeside(const SheetDrawing& sheet, const PageBox& box, const PageBox& table,
                            bool left) {
  const double bottom = table.top + kHeadsHigh;
  std::vector<const Word*> beside;
  for (const Word& word : sheet.words) {
    const bool outside = left ? word.MidX() < box.left : word.MidX() > box.right;
    if (outside && word.MidY() > table.top - 2 && word.MidY() < bottom) beside.push_back(&word);
  }
  QStringList texts;
  for (const Word* word : beside) texts.append(word->text.toUpper());
  return texts;
}

// A further block of the same schedule stands right beside a side of the box: the heads begin anew
// there.
bool BlockBeside(const SheetDrawing& sheet, const PageBox& box, const ScheduleTable& table,
                 bool left) {
  const QString head = (left ? table.columns.back() : table.columns.front()).head.toUpper();
  const QString last = head.section(u' ', -1);
  return !last.isEmpty() && HeadWordsBeside(sheet, box, table.box, left).contains(last);
}

// Whether the ruling of a table goes on outside of a side of the box.
bool GoesOn(const SheetDrawing& sheet, const PageBox& box, const ScheduleTable& whole) {
  const PageBox& table = whole.box;
  int beyond = 0;
  int beside[] = {0, 0};  // to the left, to the right
  for (const Rule& rule : sheet.rules) {
    const double low = rule.along ? table.top : table.left;
    const double high = rule.along ? table.bottom : table.right;
    if (rule.at < low - 1 || rule.at > high + 1) continue;
    const double first = rule.along ? table.left : table.top;
    const double last = rule.along ? table.right : table.bottom;
    if (rule.to < first + 5 || rule.from > last - 5) continue;
    const double boxFirst = rule.along ? box.left : box.top;
    const double boxLast = rule.along ? box.right : box.bottom;
    const bool before = rule.from < boxFirst - kBeyond;
    const bool after = rule.to > boxLast + kBeyond;
    if (rule.along) {
      beside[0] += before ? 1 : 0;
      beside[1] += after ? 1 : 0;
    } else if (before || after) {
      ++beyond;
    }
  }
  for (const bool left : {true, false}) {
    if (beside[left ? 0 : 1] > 0 && !BlockBeside(sheet, box, whole, left)) {
      beyond += beside[left ? 0 : 1];
    }
  }
  return beyond >= 3;
}

// Texts of a table that a side of the box goes through.
bool CutsText(const SheetDrawing& sheet, const PageBox& box, const PageBox& table) {
  return std::count_if(sheet.words.begin(), sheet.words.end(), [&](const Word& word) {
           const PageBox inside = word.box.Cut(box);
           if (inside.Empty() || inside.Cut(table).Empty()) return false;
           const double outside = std::max({box.left - word.box.left, word.box.right - box.right,
                                            box.top - word.box.top, word.box.bottom - box.bottom});
           return outside > 0.4 * word.size;
         }) >= 3;
}

}  // namespace

QString WhyUnreadable(const PageContent& page, const PageBox& box, bool boxed) {
  const LetterCounts letters = LettersIn(page, box);
  if (letters.hidden > 2 * letters.letters) {
    return QStringLiteral(
               "The text in %1 is hidden behind a scanned picture, as a scanner's "
               "program guessed it, and can't be trusted. Type the schedule, or ask for "
               "the drawing as the architect's program wrote it.")
        .arg(Where(boxed));
  }
  if (letters.letters == 0) return NoText(page, box, boxed);
  if (letters.letters > kMostLetters) {
    return QStringLiteral(
               "There is too much text in %1 for a schedule. Draw a box around the table "
               "only.")
        .arg(Where(boxed));
  }
  if (letters.foreign * 3 > letters.letters) {
    return QStringLiteral("The text in %1 is written from right to left, which can't be read.")
        .arg(Where(boxed));
  }
  if (letters.downwards * 3 > letters.letters) {
    return QStringLiteral("The text in %1 is written downwards, which can't be read.")
        .arg(Where(boxed));
  }
  return {};
}

bool OnlyAPicture(const PageContent& page, const std::optional<PageBox>& box) {
  const PageBox area = box.value_or(PageBox{0, 0, page.size.width, page.size.height});
  const LetterCounts letters = LettersIn(page, area);
  if (letters.hidden > 2 * letters.letters) return true;
  return letters.letters == 0 && PictureOver(page, area);
}

QString WhyNoSchedule(const std::vector<ScheduleTable>& tables, bool boxed) {
  if (tables.empty()) {
    return QStringLiteral(
               "There is no room finish schedule in %1: no heads like FLOOR, BASE, WALLS "
               "and CEILING. Draw the box around the whole table with its heads.")
        .arg(Where(boxed));
  }
  const auto finishes = std::count_if(tables.begin(), tables.end(), [](const ScheduleTable& table) {
    return table.kind == TableKind::Finish;
  });
  if (finishes == 0) {
    return QStringLiteral(
               "What stands in %1 is %2, not a room finish schedule. Draw the box "
               "around a room finish schedule.")
        .arg(Where(boxed), KindText(tables.front().kind));
  }
  const auto other = std::find_if(tables.begin(), tables.end(), [](const ScheduleTable& table) {
    return table.kind != TableKind::Finish;
  });
  if (boxed && other != tables.end()) return TwoTables(*other);
  const auto empty = std::find_if(tables.begin(), tables.end(), [](const ScheduleTable& table) {
    return table.kind == TableKind::Finish && table.rows.empty();
  });
  if (boxed && empty != tables.end()) {
    return QStringLiteral(
        "There are heads of a room finish schedule in the box, but no rows. Draw "
        "the box around the whole table.");
  }
  return {};
}

QString TwoTables(const ScheduleTable& other) {
  return QStringLiteral(
             "There are two tables there, one of them %1. Draw the box around one table.")
      .arg(KindText(other.kind));
}

QString WhyCut(const SheetDrawing& sheet, const PageBox& box,
               const std::vector<ScheduleTable>& tables) {
  const bool cut = std::any_of(tables.begin(), tables.end(), [&](const ScheduleTable& table) {
    return GoesOn(sheet, box, table) || CutsText(sheet, box, table.box);
  });
  if (!cut) return {};
  return QStringLiteral(
      "The box cuts through the table. Draw it around the whole table, with its "
      "heads.");
}

}  // namespace tamo
