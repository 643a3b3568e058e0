#pragma once

#include <QString>

#include "common/control.h"
#include "common/form.h"
#include "plans/pdfdraw.h"
#include "player/played.h"

namespace tamo::player {

// How long a search on the plan may take, in milliseconds.
inline constexpr int kSearchPatience = 20000;

// How a step of a person becomes events of the program. The runner has made sure that the person
// can reach what the step names; what only the stage can see (a widget that is covered, no field
// with the focus) it reports by Fail.
class Stage {
 public:
  virtual ~Stage() = default;

  virtual void Raise(Played& played) = 0;  // a program was made and is about to start
  virtual void Strike() = 0;               // it is about to be taken down
  virtual void ToFront() {}                // the person turns to it from another program

  virtual void ChooseMenu(MenuEntry& entry) = 0;
  virtual void Focus(Control& control) = 0;
  virtual void Type(const QString& text) = 0;   // into the focused control
  virtual void PressKey(const Key& key) = 0;    // likewise
  virtual void Enter(const QString& text) = 0;  // over the whole text, then the key Enter
  virtual void Paste(const QString& text) = 0;
  virtual void Click(Control& control) = 0;
  virtual void DoubleClick(Control& control) = 0;
  virtual void RightClick(Control& control) = 0;
  virtual void ClickNotice() = 0;
  virtual void SelectRow(OrderedList& list, int row) = 0;
  virtual void RightSelectRow(OrderedList& list, int row) = 0;
  virtual void DoubleSelectRow(OrderedList& list, int row) = 0;
  virtual void TickRow(CheckList& list, int row) = 0;
  virtual void ScrollTo(OrderedList& list, int row) = 0;
  virtual void ClickSuggestion(int row) = 0;  // there is one
  virtual void Pick(FileBrowser& browser, const QString& path, bool twice) = 0;
  virtual void CloseBox(Form& form) = 0;

  virtual void PlanMode(int mode) = 0;
  virtual void PlanLine(PagePoint from, PagePoint to) = 0;
  virtual void PlanCircle(PagePoint at) = 0;
  virtual void PlanPress(PagePoint at) = 0;
  virtual void PlanDrag(PagePoint from, PagePoint to) = 0;
  virtual void PlanKey(const PlanStroke& stroke) = 0;
  virtual void PlanScroll(double dx, double dy) = 0;
  virtual void PlanPage(int page) = 0;
  virtual void PlanBox(PagePoint from, PagePoint to) = 0;
  virtual void PlanOutline(PlanTool tool, const std::vector<PagePoint>& points) = 0;

  // After each step: what on the screen differs from the forms, "" when nothing does. `front`: the
  // program's windows are the active ones, so the focus must be where the forms say.
  virtual QString Difference(bool /*front*/) { return {}; }
  // A PNG of a window; false when this stage has no windows.
  virtual bool SavePicture(Form& form, const QString& path) = 0;
};

}  // namespace tamo::player
