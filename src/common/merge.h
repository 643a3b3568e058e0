#pragma once

#include <QString>

namespace tamo {

// What a text file is made of, for a save that finds another text there than the one it was made
// from.
enum class FileKind {
  Record,  // one whole: two different texts of it can't be merged
  Latest,  // likewise, but whoever stores it last is right
  List,    // a name a line
  Pairs,   // two lines a name, of which the first is the name
  Lines,   // a line with figures a line: one that both sides changed can't be merged
  Sheet,   // a first line of its own, then as Lines
};

// What the file must hold so that neither side loses an entry. `base` is what both began with, ""
// when that is not known; `mine` is to be stored; `theirs` is in the file. A list keeps the order
// of `theirs`, with the entries that were added to `mine` behind and without those that were taken
// out of it; what both added is there once. False, and nothing in `merged`, when only a person can
// choose: of whole records, of a line that both changed, of a file that was emptied.
bool MergeTexts(FileKind kind, const QString& base, const QString& mine, const QString& theirs,
                QString& merged);

}  // namespace tamo
