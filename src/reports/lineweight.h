#pragma once

#include <QStringView>

namespace tamo {

// Whether a line of the report with this title (its first line) is one that the eye looks for: the
// title, the head of a section, a room, a system, a total. The text of the line says it alone;
// whoever shows or prints it gives it weight and leaves the text as it is.
bool IsHeavyLine(QStringView title, QStringView line);

}  // namespace tamo
