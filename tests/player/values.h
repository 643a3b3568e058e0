#pragma once

#include <QString>
#include <QStringList>

#include "common/control.h"
#include "plans/mark.h"
#include "plans/pdfdraw.h"

namespace tamo::player {

// A control as a scenario sees it: a field's text, a caption, 0 or 1, rows.
QStringList ControlLines(const Control& control);
// The rows of a file list: the files of its folder that its pattern lets through.
QStringList FileRows(const FileBrowser& browser);
bool PatternTakes(const FileBrowser& browser, const QString& fileName);

// `line PAGE X1 Y1 X2 Y2 RRRGGGBBB WIDTH LABEL`, the same of a `polyline` and a `polygon` with all
// their points, or `circle PAGE X Y RRRGGGBBB`.
QString MarkLine(const Mark& mark);
// The chosen mark, its point in hand from 1, and its title; "none" when none is chosen.
QString ChosenLine(const PdfDraw& viewer);
// Number text with at most two decimals.
QString ShortNumber(double number);

inline QString TrueOrFalse(bool value) {
  return value ? QStringLiteral("True") : QStringLiteral("False");
}

}  // namespace tamo::player
