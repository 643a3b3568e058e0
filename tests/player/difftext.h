#pragma once

#include <QString>
#include <QStringList>

namespace tamo::player {

// What differs between two texts, line by line: "- |...|" was expected, "+ |...|" was found, two
// equal lines around it. Bars show blanks at the ends. At most `most` lines.
QString ShortDiff(const QStringList& expected, const QStringList& found, int most = 60);

}  // namespace tamo::player
