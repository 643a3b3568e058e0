#pragma once

#include <QString>
#include <QStringList>

#include "common/textrows.h"

namespace tamo {

// What a takeoff form shows of the room or the area in work.
struct SheetState {
  QString file;  // of the lines; "" when no room or area is in work
  ListRows lines;
  int line = -1;      // the selected one; kAsItIs: whichever it is
  QStringList texts;  // heights
  QStringList
      entries;  // of the line in work; shared with the list on the screen until that changes
  static constexpr int kAsItIs = -2;
};

// A takeoff form, for whoever changes the files behind it.
class SheetScreen {
 public:
  virtual ~SheetScreen() = default;
  virtual SheetState State() const = 0;
  // Of the same room or area. The focus stays, and no line is begun.
  virtual void ShowState(const SheetState& state) = 0;
  // These files were changed: what the form shows of them is read again, and the estimator stays
  // where he is. A room or an area that is off its list leaves the screen.
  virtual void FollowFiles(const QStringList& paths) = 0;
};

}  // namespace tamo
