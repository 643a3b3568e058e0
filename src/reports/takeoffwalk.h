#pragma once

#include <QString>
#include <QStringView>

#include "records/linecolumns.h"
#include "reports/reportsource.h"

namespace tamo {

enum class SheetKind { Room, Area };

// Who looks at the whole takeoff of a project, sheet by sheet.
class TakeoffVisitor {
 public:
  virtual ~TakeoffVisitor() = default;
  virtual void BeginSheet(SheetKind kind, const QString& name);
  virtual void Line(SheetKind kind, QStringView line) = 0;
  virtual void EndSheet(SheetKind kind);
};

// Every line of every room, then of every area, in their order. No rooms are visited when the list
// of rooms can't be read. Tells its progress, also within a long sheet.
void WalkTakeoff(const ReportSource& source, TakeoffVisitor& visitor);

}  // namespace tamo
