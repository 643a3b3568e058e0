#pragma once

#include <QString>
#include <QStringView>

namespace tamo {

// Widths and columns count characters; columns are counted from 1, as an estimator counts them on
// the printed sheet.

// `count` blanks. A negative count raises a RunTimeFailure (kInvalidArgument): a text is wider than
// its column.
QString Blanks(qsizetype count);

QString PaddedRight(const QString& text,
                    qsizetype width);  // text, then blanks; fails when text is wider
QString PaddedLeft(const QString& text,
                   qsizetype width);  // blanks, then text; fails when text is wider

// The same, but a text wider than its column takes the room it needs and the line grows.
QString GrownRight(const QString& text, qsizetype width);
QString GrownLeft(const QString& text, qsizetype width);
QString GrownBlanks(qsizetype count);  // no blanks for a negative count

// `width` characters from column `from`; fewer, or none, when the text ends before.
QString Columns(const QString& text, qsizetype from, qsizetype width);
// Everything from column `from` on.
QString From(const QString& text, qsizetype from);

// Trimmed of blanks (the character, not other white space) at both ends.
QString TrimmedBlanks(const QString& text);

}  // namespace tamo
