#pragma once

#include <QString>
#include <QStringList>

namespace tamo {

// What a takeoff unit asks of the estimator. Codes are compared in any case: "lf" is "LF".

// LF, LM, LY, EA, CT, EACH, COUNT: the number entered is added to the quantity as it stands.
// Every other unit, SF or SY among them, is a surface: a height or width and a length are entered,
// and their product is added.
bool IsLinearOrCount(const QString& units);
// EA, CT, EACH, COUNT: pieces are counted, on the plan with circles.
bool IsCount(const QString& units);
// The finish areas CLNG, CEILING, FLR, FLOOR: such a line of a room asks for its own width each
// time instead of taking the room's height.
bool AsksForWidth(const QString& finishArea);

// The first line that is an empty slot or begins with the system's name, or the count of lines when
// there is none. The name may be the beginning of a longer one: Paint finds Paint Walls (held by a
// test).
int FindLine(const QStringList& lines, const QString& system);

}  // namespace tamo
