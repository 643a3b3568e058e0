#pragma once

#include <QString>
#include <QStringView>
#include <functional>

#include "records/linecolumns.h"
#include "records/linescanner.h"
#include "reports/reportsource.h"

namespace tamo {

class SystemsAhead;

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
// of rooms can't be read. Tells its progress, also within a long sheet. `systems`, when there are
// any, look at the sheets that are read ahead.
void WalkTakeoff(const ReportSource& source, TakeoffVisitor& visitor,
                 SystemsAhead* systems = nullptr);

// A sheet as its file holds it.
struct TakeoffSheet {
  SheetKind kind = SheetKind::Room;
  size_t number = 0;  // in the order of the walk, from 0
  size_t all = 0;     // sheets
  QString name;
  QString text;  // empty when it can't be read, which the source is told
};
LineScanner LinesOf(SheetKind kind, QStringView text);
inline LineScanner LinesOf(const TakeoffSheet& sheet) {
  return LinesOf(sheet.kind, sheet.text);
}

// The same by whole sheets. `each` returns how many lines of its sheet lack a quantity, and tells
// its progress within a long one.
void WalkSheets(const ReportSource& source, const std::function<int(const TakeoffSheet&)>& each,
                SystemsAhead* systems = nullptr);

// `each` for every line of a sheet; returns how many of them lack a quantity.
int WalkLines(const ReportSource& source, const TakeoffSheet& sheet,
              const std::function<void(QStringView)>& each);

}  // namespace tamo
