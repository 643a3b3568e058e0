#pragma once

#include <QString>
#include <functional>
#include <utility>

#include "plans/mark.h"

namespace tamo {

enum class PlanTool {
  None = 0,
  Measuring = 1,
  Counting = 2,
  Polyline = 3,
  Area = 4,
  Rectangle = 5,  // an area by two corners
  CutOut = 6,
  Perimeter = 7
};

// What the viewer tells, synchronously inside the call that causes it, on the thread of the forms.
// The window has onMarksChanged, onViewChanged, onLookAt, onPrint, onBringToFront and
// onSaveProgress; all others belong to the plan form.
struct PlanEvents {
  std::function<void()> onBeforeModeChange;
  std::function<void(PlanTool tool)> onModeChanged;
  // A line is done. The length comes in the paper unit of the unit index; the handler may change it
  // and the unit text behind it. The mark's label becomes LengthText(length), a blank, and the
  // label.
  std::function<void(double& length, QString& label)> onLineMeasured;
  // The same arithmetic for the line in work, for its running length: nothing is handed over.
  std::function<void(double& length, QString& label)> onLineRunning;
  std::function<void(double paperLength)> onLineChecked;
  // The same of an area, in square paper units. A cut-out comes with a negative area.
  std::function<void(double& area, QString& label)> onAreaMeasured;
  std::function<void(double& area, QString& label)> onAreaRunning;
  // What is drawn can't be what the tool is for: why, and what to do. "" when it can again.
  std::function<void(const QString& why)> onToolRefused;
  // A place of the page in front is to be in sight.
  std::function<void(PagePoint at)> onLookAt;
  // The lines and the printed scales of the sheet in front are known.
  std::function<void()> onSheetRead;
  std::function<void(int count)> onCircleCountChanged;  // the circles of all pages
  std::function<void()> onPenChanged;                   // the colour or the width of the next mark
  // Something speaks against marking this plan: true when it is to be marked all the same. Asked
  // once for a plan, before its first mark.
  std::function<bool(const QString& reservation)> onReservation;
  // A mark that was chosen is changed or removed, or that is taken back or brought back.
  std::function<void()> onMarkEdited;
  std::function<void()> onMarkChosen;  // another one, another point of it, or none
  std::function<void()> onPageChanged;
  std::function<void()> onScrolled;  // by the user only
  std::function<void()> onMousePressed;
  std::function<void()> onEnterKey;
  // A press and release in one place with no tool in hand, where no mark is to be chosen.
  std::function<void(PagePoint at)> onPlainClick;
  // Whether something that is looked at is still to be painted.
  std::function<void(bool painting)> onPainting;
  std::function<void()> onPrint;
  std::function<void()> onBringToFront;
  std::function<void()> onMarksChanged;  // marks, the line in work or the cross hair: paint again
  std::function<void()> onViewChanged;   // zoom, position, rotation or page: paint again
  // Every few milliseconds while a save is in work on the plan's thread and this one waits for it:
  // the window goes on living meanwhile, but takes no input. At 100 it is done.
  std::function<void(int perCent)> onSaveProgress;
  std::function<void(const QString& text)> onProblem;  // a failure found after OpenFile came back
  // A page can't be drawn, or not whole; the plan is shown all the same.
  std::function<void(const QString& text)> onPageProblem;

 protected:
  template <typename Event, typename... Args>
  static void Raise(const Event& event, Args&&... args) {
    if (event) event(std::forward<Args>(args)...);
  }
};

}  // namespace tamo
