#pragma once

#include <QString>
#include <QStringList>

// Control characters as scenarios write them: ^A is code 1, ^I a tab, ^J a lone LF, ^M a lone CR,
// ^^ a caret.

namespace tamo::player {

// `^$` alone on a line: the text before it has no line end.
inline constexpr char kNoLineEnd[] = "^$";

QString Shown(const QString& text);    // with carets
QString Unshown(const QString& text);  // the text meant; a caret that means nothing stays one
// The one spelling of what a scenario wrote, so that ^I and a real tab compare equal.
QString Respelled(const QString& written);

// The same for standard output, where a tab is a tab: what is printed pastes into a table.
QString Printed(const QString& shown);

// A text as its lines, with carets. CR LF ends a line and begins no other; the text "" has none.
QStringList ShownLines(const QString& text);
// The lines of a file: as above, and a last line without an end is followed by the line ^$.
QStringList ShownFileLines(const QString& content);
// The content of a file from the lines of a block.
QString FileContent(const QStringList& block);

}  // namespace tamo::player
