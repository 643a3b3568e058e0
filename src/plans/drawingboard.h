#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "plans/pdfdraw.h"

namespace tamo {

// Everything of the viewer that needs no PDF: the tools, the marks with taking back and bringing
// back, pages, zoom, view and units. The real viewer and the test double both stand on it, so they
// behave alike.
class DrawingBoard : public PdfDraw {
 public:
  QString ShownFile() const override;
  QString ShownPath() const override { return path_; }
  bool HasUnsavedMarks() const override;
  QString Problem() const override { return problem_; }

  void SetPage(int page) override;
  int Page() const override { return page_; }
  int PageCount() const override { return static_cast<int>(sizes_.size()); }
  PageSize SizeOfPage(int page) const override;
  void SetZoom(int perCent) override;
  int Zoom() const override { return zoom_; }
  void SetViewValue(int index, int value) override;
  int ViewValue(int index) const override;

  void SetMarkColour(const QString& colour) override;
  QString MarkColour() const override { return colour_; }
  void SetMarkWidth(double points) override;
  double MarkWidth() const override { return width_; }
  void SetMarkerSize(double points) override;
  double MarkerSize() const override { return markerSize_; }
  std::vector<Mark> Marks() const override;
  void DeleteMark(int index) override;
  bool Undo() override;
  bool Redo() override;

  double EvaluateFraction(const QString& text) const override;
  void SetUnitName(const QString& name) override { unitName_ = name; }
  QString UnitName() const override { return unitName_; }
  void SetUnitIndex(int index) override;
  int UnitIndex() const override { return unitIndex_; }
  void SetCheckNext(bool check) override { checkNext_ = check; }
  bool CheckNext() const override { return checkNext_; }

  void Print() override;
  void BringToFront() override;

  void PickTool(int mode) override;
  int Tool() const override { return tool_; }
  void Press(PagePoint at, bool shift) override;
  void Move(PagePoint at, bool shift) override;
  void Release(PagePoint at, bool shift) override;
  void Key(const PlanStroke& stroke) override;
  void DrawLine(PagePoint from, PagePoint to) override;
  void PlaceCircle(PagePoint at) override;
  void ScrollBy(double dx, double dy) override;
  void TurnPage(int page) override { SetPage(page); }
  void SetBoxNext(bool box) override { boxNext_ = box; }
  bool BoxNext() const override { return boxNext_; }
  void DrawBox(PagePoint from, PagePoint to) override;
  std::optional<DrawnBox> Box() const override { return box_; }
  LineInWork LineWork() const override;
  PagePoint CrossHair() const override { return crossHair_; }

 protected:
  // Puts a plan on the board, as OpenFile promises. `path` empty: the blank sheet. `marks` oldest
  // first. Raises the events.
  void ShowPlan(const QString& path, std::vector<PageSize> sizes, std::vector<Mark> marks);
  // The two halves of it: a plan begins (its pages are not known yet), and its pages and marks
  // come.
  void BeginPlan(const QString& path);
  // Takes the pages and marks of a plan that was slow to open; page, view and units stay as they
  // were set meanwhile.
  void FillPlan(std::vector<PageSize> sizes, std::vector<Mark> marks);
  // After a save: `path` is now the file shown.
  void MarkSaved(const QString& path);
  void SetProblem(const QString& text) { problem_ = text; }
  void SetSizeOfPage(int page, PageSize size);

  const std::vector<Mark>& BoardMarks() const { return marks_; }  // oldest first

 private:
  struct Step {
    bool added = true;  // or deleted
    size_t at = 0;
    Mark mark;
  };

  void Add(Mark mark);
  void Do(const Step& step, bool forward);
  void BeginLine(PagePoint at);
  void EndLine();
  void DropLine();
  void AddCircle(PagePoint at);
  void MoveCrossHair(PlanKey key, bool ctrl, bool shift);
  void PressSpace(bool shift);
  void StretchBox(PagePoint to);
  PagePoint LineEnd(PagePoint at, bool shift) const;
  double PaperLength() const;
  QString PaperUnit() const;
  QString NextName();
  int CircleCount() const;
  void Repaint();
  void ViewChanged();

  QString path_;
  QString problem_;
  std::vector<PageSize> sizes_ = {PageSize()};
  std::vector<Mark> marks_;
  std::vector<Step> done_;
  std::vector<Step> undone_;
  QStringList saved_;  // the names of the marks that stand in the file
  int lastNumber_ = 0;

  int page_ = 1;
  int wantedPage_ = 1;
  int zoom_ = 100;
  int view_[3] = {0, 0, 0};
  int tool_ = NoTool;
  QString colour_ = QStringLiteral("255000000");
  double width_ = 0.75;
  double markerSize_ = 13.5;
  QString unitName_ = QStringLiteral("feet");
  int unitIndex_ = Inches;
  bool checkNext_ = false;
  bool boxNext_ = false;  // the next drag draws a box
  bool boxing_ = false;   // it is being drawn
  PagePoint boxFrom_;
  std::optional<DrawnBox> box_;

  enum class LineState { None, Dragging, Placed, Closing };
  LineState line_ = LineState::None;
  PagePoint from_;
  PagePoint to_;
  PagePoint crossHair_ = {306, 396};
};

}  // namespace tamo
