#pragma once

#include <QString>
#include <vector>

#include "plans/mark.h"
#include "plans/sheetview.h"

namespace tamo {

// The marks on the sheets, with taking back and bringing back, and the pen for new ones.
class MarkedSheets : public SheetView {
 public:
  void SetMarkColour(const QString& colour);  // RRRGGGBBB; anything else is passed over
  QString MarkColour() const { return colour_; }
  void SetMarkWidth(double points);
  double MarkWidth() const { return width_; }
  void SetMarkerSize(double points);  // diameter of a counting circle
  double MarkerSize() const { return markerSize_; }

  std::vector<Mark> Marks() const;                                  // of all pages, newest first
  const std::vector<Mark>& MarksAsDrawn() const { return marks_; }  // the same, oldest first
  void DeleteMark(int index);  // 0 is the newest; no such mark: nothing happens
  bool Undo();                 // false when there is nothing to take back
  bool Redo();

  // The mark of that name was drawn since the plan was opened.
  bool WasDrawnHere(const QString& name) const;
  // Takes it off the sheet, or puts it there again under its own name. False when it is not there,
  // or there already.
  bool TakeOff(const QString& name, Mark& mark);
  bool PutBack(const Mark& mark);
  // Marks of another plan, each under its own name; those that are there stay. Nobody counted them
  // here: no count is told.
  void TakeOver(const std::vector<Mark>& marks);

  unsigned MarksRevision() const { return revision_; }  // another one when any mark is another
  const Mark* FindMark(const QString& name) const;      // until marks come, go or change; or null
  // The mark of the same name becomes `mark`. With `joinLast` it is taken back together with the
  // change before, if that was one of the same mark.
  void ChangeMark(const Mark& mark, bool joinLast = false);
  // The same of several, taken back together.
  void ChangeMarks(const std::vector<Mark>& marks);
  // A new mark, not drawn by a tool; raises onMarkEdited. Its name.
  QString PlaceMark(Mark mark);
  // Takes the mark away; raises onMarkEdited, as ChangeMark does.
  void RemoveMark(const QString& name);
  // What this program keeps with a mark becomes `kept`. That is no step: taking back leaves it.
  void KeepWith(const QString& name, const QString& kept);

 protected:
  // Takes the place of all marks; oldest first. Nothing can be taken back then. Totals are left
  // out: they are made anew.
  void FillMarks(std::vector<Mark> marks);
  void ClearMarks() {
    marks_.clear();
    ++revision_;
  }
  // A mark of the pen on the current page, without label and name; AddMark gives it its name.
  Mark NewMark(Mark::Kind kind, std::vector<PagePoint> points) const;
  void AddMark(Mark mark);
  void AddMarks(std::vector<Mark> marks);  // taken back and brought back together
  void Repaint() { Raise(onMarksChanged); }

 private:
  struct Step {
    enum class What { Added, Deleted, Changed };
    What what = What::Added;
    size_t at = 0;
    Mark mark;
    Mark before;  // of one that was changed
    bool edits = false;
    bool joined = false;  // goes with the one before
  };
  void TakeStep(Step step);
  Mark Settled(Mark mark) const;
  void Do(const Step& step, bool forward);
  void Put(const Step& step, bool forward);
  void Tell(const Step& last);
  int CircleCount() const;

  std::vector<Mark> marks_;
  std::vector<Step> done_;
  std::vector<Step> undone_;
  int lastNumber_ = 0;
  unsigned revision_ = 1;
  QString colour_ = QStringLiteral("255000000");
  double width_ = 0.75;  // points, as the next
  double markerSize_ = 13.5;
};

}  // namespace tamo
