#pragma once

#include <QString>
#include <vector>

#include "plans/pagecontent.h"
#include "schedule/rules.h"

namespace tamo {

// Which way a text reads on the sheet, to the nearest quarter turn.
enum class Way { Right, Up, Left, Down };

// A word as it stands on a sheet: letters without a gap, whatever number of strings they were drawn
// in. Points, from the sheet's top left corner.
struct Word {
  QString text;
  PageBox box;      // along: the letters' advance; across: from the base line to the capitals' top
  double base = 0;  // the base line: its y for Right and Left, its x for Up and Down
  double size = 0;  // of the largest letter
  Way way = Way::Right;
  double spacing = 0;    // between its letters, beyond what the face has
  int piece = -1;        // which drawn string its first letter comes from
  bool fixed = false;    // of a typewriter face
  bool unknown = false;  // a letter that the file doesn't tell

  double MidX() const { return (box.left + box.right) / 2; }
  double MidY() const { return (box.top + box.bottom) / 2; }
};

// What the letters of a sheet are.
struct LetterCounts {
  qsizetype letters = 0;    // letters that can be seen
  qsizetype hidden = 0;     // letters drawn with no ink
  qsizetype foreign = 0;    // letters of a script that is written from right to left
  qsizetype downwards = 0;  // letters of a font for writing downwards
};

LetterCounts CountLetters(const std::vector<TextPiece>& texts);

// The words of a sheet. Text drawn twice at one place counts once. Text that is neither along nor
// across the sheet, hidden or cut away is left out. Strings on both sides of one of the `rules` are
// never one word.
std::vector<Word> WordsOf(const std::vector<TextPiece>& texts, const std::vector<Rule>& rules = {});

}  // namespace tamo
