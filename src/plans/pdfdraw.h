#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <vector>

#include "plans/mark.h"

namespace tamo {

// A key on the plan. Left to Down move the cross hair while a tool is in hand (9 points a step,
// with Ctrl half a point) and scroll the page otherwise; Space places a point or a circle at the
// cross hair; Escape drops the line in work; Backspace drops its last point; Enter gives the focus
// back.
enum class PlanKey { Left, Right, Up, Down, Space, Enter, Escape, Backspace, Undo, Redo };

struct PlanStroke {
  PlanKey key = PlanKey::Enter;
  bool shift = false;  // keeps the line in work to steps of 45 degrees
  bool ctrl = false;
};

// Reads a key's name as "Enter", "Left", "Ctrl+Left", "Shift+Ctrl+Up", "Ctrl+Z", "Ctrl+Y", "Space".
// False when there is no such key; then `stroke` is unchanged.
bool PlanStrokeFromName(const QString& name, PlanStroke& stroke);

// The line that is being drawn and is no mark yet.
struct LineInWork {
  bool active = false;
  bool check = false;  // measures a known dimension and will leave no mark
  int page = 1;
  PagePoint from;
  PagePoint to;
  QString text;  // its running length, as the label of the mark would say it
};

// A box that was drawn around a table of the plan; its corners in points of the page.
struct DrawnBox {
  int page = 1;
  PagePoint topLeft;
  PagePoint bottomRight;
};

// The plan viewer: shows one PDF at a time, pages and zooms it, marks and measures it. All calls
// and all events belong to one thread (that of the forms); events are raised synchronously inside
// the call that causes them, except those of a plan that needs long to open (see OpenFile).
//
// Failures are numbers, as for every file: 0 done, 53 file not found, 76 path not found, 75 access
// denied, 61 disk full, 57 anything else (a damaged or locked PDF); Problem() says it in words.
class PdfDraw {
 public:
  enum Mode { NoTool = 0, Measuring = 1, Counting = 2 };
  enum Unit { Inches = 0, Centimetres = 1, Millimetres = 2 };
  enum View { Horizontal = 0, Vertical = 1, Rotation = 2 };

  virtual ~PdfDraw() = default;

  // --- Files
  // Shows a plan at page 1, position 0 0, not rotated, with the unit index 0 (inches), the unit
  // name "feet" and no tool in hand; the zoom stays. Raises onPageChanged, no onScrolled. When the
  // plan can't be shown, a blank sheet is (one page, nothing to save, ShownFile() empty) and the
  // number says why. A plan that is slow to open returns 0 with one blank page; when it is there,
  // onPageChanged comes again, or onProblem, and a page set in between is turned to.
  virtual int OpenFile(const QString& path, const QString& password) = 0;
  // Writes the plan with its marks, and goes on showing the file written. Costs nothing when the
  // target is the file shown and no mark has changed. A failure leaves the old file whole and the
  // marks unsaved.
  virtual int SaveAs(const QString& path) = 0;
  virtual QString ShownFile() const = 0;  // file name without folder; empty for the blank sheet
  virtual QString ShownPath() const = 0;  // the path as it was given
  virtual bool HasUnsavedMarks() const = 0;
  virtual QString Problem() const = 0;  // the last failure: what, where, what to do

  // --- Pages, zoom, view
  virtual void SetPage(int page) = 0;  // from 1; brought into 1..PageCount(); raises onPageChanged
  virtual int Page() const = 0;
  virtual int PageCount() const = 0;                // at least 1
  virtual PageSize SizeOfPage(int page) const = 0;  // points
  virtual void SetZoom(int perCent) = 0;            // brought into 5..1600
  virtual int Zoom() const = 0;
  // 0 and 1: the place of the page, in whole points, that stands at the view's top left corner;
  // 2: the turn of the view in degrees. What is set is what is got; what is shown is brought into
  // the page and to quarter turns. Raises nothing.
  virtual void SetViewValue(int index, int value) = 0;
  virtual int ViewValue(int index) const = 0;

  // --- Marks
  virtual void SetMarkColour(const QString& colour) = 0;  // RRRGGGBBB; anything else is passed over
  virtual QString MarkColour() const = 0;
  virtual void SetMarkWidth(double points) = 0;
  virtual double MarkWidth() const = 0;
  virtual void SetMarkerSize(double points) = 0;  // diameter of a counting circle
  virtual double MarkerSize() const = 0;
  virtual std::vector<Mark> Marks() const = 0;  // of all pages, newest first
  virtual void DeleteMark(int index) = 0;       // 0 is the newest; no such mark: nothing happens
  virtual bool Undo() = 0;                      // false when there is nothing to take back
  virtual bool Redo() = 0;

  // --- Measuring
  // A whole number, a fraction, or a whole number, a blank and a fraction: "1 1/2" gives 1.5.
  // Anything else gives 0.
  virtual double EvaluateFraction(const QString& text) const = 0;
  virtual void SetUnitName(const QString& name) = 0;  // does not change the index
  virtual QString UnitName() const = 0;
  virtual void SetUnitIndex(int index) = 0;  // 0 inches, 1 centimetres, 2 millimetres
  virtual int UnitIndex() const = 0;
  // The next line is a check: it raises onLineChecked instead of onLineMeasured and leaves no mark.
  virtual void SetCheckNext(bool check) = 0;
  virtual bool CheckNext() const = 0;

  // --- Window
  virtual void Print() = 0;         // raises onPrint
  virtual void BringToFront() = 0;  // raises onBringToFront

  // --- What the user does. Places in points on the current page.
  // Picks a tool. Raises onBeforeModeChange and onModeChanged, also when it is in hand already.
  virtual void PickTool(int mode) = 0;
  virtual int Tool() const = 0;
  // Measuring: press, move with the button down and release draws a line; press and release in one
  // place begins a line that the next press and release ends. Counting: a press places a circle.
  virtual void Press(PagePoint at, bool shift) = 0;
  virtual void Move(PagePoint at, bool shift) = 0;
  virtual void Release(PagePoint at, bool shift) = 0;
  virtual void Key(const PlanStroke& stroke) = 0;
  virtual void DrawLine(PagePoint from, PagePoint to) = 0;  // the whole line; takes the tool first
  virtual void PlaceCircle(PagePoint at) = 0;               // takes the tool first
  virtual void ScrollBy(double dx, double dy) = 0;  // points; raises onScrolled when it moves
  virtual void TurnPage(int page) = 0;              // as SetPage, by the user
  virtual LineInWork LineWork() const = 0;
  virtual PagePoint CrossHair() const = 0;

  // --- A box around a table. It is no mark: the next box, another plan or Escape takes it away.
  virtual void SetBoxNext(bool box) = 0;  // the next drag draws a box, whatever tool is in hand
  virtual bool BoxNext() const = 0;
  virtual void DrawBox(PagePoint from, PagePoint to) = 0;  // on the current page
  virtual std::optional<DrawnBox> Box() const = 0;

  // --- Events
  std::function<void()> onBeforeModeChange;
  std::function<void(int mode)> onModeChanged;
  // A line is done. The length comes in the paper unit of the unit index; the handler may change it
  // and the unit text behind it. The mark's label becomes LengthText(length), a blank, and the
  // label.
  std::function<void(double& length, QString& label)> onLineMeasured;
  // The same arithmetic for the line in work, for its running length: nothing is handed over.
  std::function<void(double& length, QString& label)> onLineRunning;
  std::function<void(double paperLength)> onLineChecked;
  std::function<void(int count)> onCircleCountChanged;  // the circles of all pages
  std::function<void()> onBoxDrawn;
  std::function<void()> onPageChanged;
  std::function<void()> onScrolled;  // by the user only
  std::function<void()> onMousePressed;
  std::function<void()> onEnterKey;
  std::function<void()> onPrint;
  std::function<void()> onBringToFront;
  std::function<void()> onMarksChanged;  // marks, the line in work or the cross hair: paint again
  std::function<void()> onViewChanged;   // zoom, position, rotation or page: paint again
  // While the first marked copy of a large plan is written and takes long; at 100 it is done.
  std::function<void(int perCent)> onSaveProgress;
  std::function<void(const QString& text)> onProblem;  // a failure found after OpenFile came back
};

}  // namespace tamo
