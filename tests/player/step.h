#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <vector>

#include "common/control.h"
#include "plans/pdfdraw.h"

namespace tamo::player {

enum class Act {
  Clock,
  Wait,
  Start,
  Stop,
  Menu,
  Focus,
  Type,
  Key,
  Enter,
  Paste,
  Click,
  DoubleClick,
  RightClick,
  Select,
  RightSelect,
  DoubleSelect,
  Tick,
  ScrollTo,
  Suggestion,
  Pick,
  DoublePick,
  Close,
  Answer,
  Choose,
  PlanMode,
  PlanLine,
  PlanCircle,
  PlanPress,
  PlanKey,
  PlanScroll,
  PlanPage,
  PlanBox,
  PlanPolyline,
  PlanPolygon,
  PlanCutOut,
  PlanSnap,
  PlanDrag,
  Write,
  Copy,
  Remove,
  Deny,
  Allow,
  Hide,
  Unhide,
  Unreadable,
  Readable,
  Fill,
  Unfill,
  Use,
  Print,
  Expect
};

enum class Compare { Exactly, Block, Contains };

// One line of a scenario, with the block behind it. Texts stand as they were written: carets and
// {home} are taken for what they mean when the step is played.
struct Step {
  QString file;         // in which it stands; "" when its lines came without a file
  QString usedBy;       // FILE:LINE of the `use` that brought it here; "" in the scenario itself
  int line = 0;         // from 1
  bool second = false;  // it is done at the second program
  Act act = Act::Start;
  QString source;  // the line itself
  QString error;   // why it can't be understood; "" when it can

  QString name;  // FORM.CONTROL, FORM, or "notice"
  QString text;  // what is typed, a path, or WHAT is looked at
  int row = 0;   // also the mode and the page of a plan step, seconds
  QDate date;
  bool yes = false;
  tamo::Key key;
  PlanStroke stroke;
  std::vector<double> points;  // of a plan step: x, y, ...

  Compare compare = Compare::Exactly;
  QString expected;   // the rest of an `expect` line
  QStringList block;  // of `write` and `expect`
};

}  // namespace tamo::player
