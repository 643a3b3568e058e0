#pragma once

#include <QAbstractScrollArea>
#include <QPointF>
#include <QTimer>

#include <functional>
#include <vector>

#include "common/desk.h"
#include "plans/pdfdraw.h"
#include "plans/planpictures.h"
#include "windows/sheetinwindow.h"
#include "windows/sheetpaint.h"

class QPrinter;

namespace tamo {

// The plan: its pictures, the marks of this program on top, the line in work with its running
// length, and the cross hair. What the mouse and the keys do goes to the viewer inside an event of
// the Desk.
//
// Places of the viewer (its view values 0 and 1) are points of the page as it is turned; a page
// smaller than the window stands in its middle.
class PlanCanvas : public QAbstractScrollArea {
 public:
  // `pictures` may be nullptr: then the sheet is white.
  PlanCanvas(PdfDraw& viewer, PlanPictures* pictures, Desk& desk, QWidget* parent = nullptr);
  ~PlanCanvas() override;

  // How the sheet lies in the viewport now.
  SheetInWindow Sheet() const { return {viewer_, viewport()->size()}; }
  // Where a place of the page (points, before the view's turn) stands in the viewport; it is
  // scrolled into sight when it is not.
  QPointF PlaceInView(PagePoint at);

  // Turns the view by a quarter, clockwise.
  void TurnView();
  void Print();
  // Asks for a printer; false when the user thinks better of it. The system's dialog, unless set.
  std::function<bool(QPrinter& printer)> askForPrinter;

  // The whole sheet, or its whole width, in sight.
  void FitPage();
  void FitWidth();
  // Does a zoom about the cross hair while that is in sight, else about the middle.
  void ZoomByKey(const std::function<void()>& zoom);
  std::function<void()> onPictures;                        // more pictures are there
  std::function<std::vector<FoundBox>(int page)> foundOn;  // what is framed on a page; may be empty
  // Where a link at a place of the page leads, in words; "" where there is none.
  std::function<QString(PagePoint at)> linkAt;
  // The user's scrolling that the viewer has not been told of yet. It is told once the sheet rests,
  // since the project's record is saved each time.
  void FinishScroll();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;

 private:
  void SyncBars();
  void ViewChanged();
  void Pan(const QPointF& points);
  void ZoomAbout(const QPointF& place, const std::function<void()>& zoom);
  void ZoomByWheel(const QPointF& place, double notches);
  void FitTo(double pixelsPerPoint);
  // Where on the page the mouse takes hold.
  PagePoint Pointed(const QMouseEvent& event);
  void ShowPointer(const QPointF& place);

  PdfDraw& viewer_;
  PlanPictures* pictures_;
  Desk& desk_;
  bool syncingBars_ = false;
  double lookedRatio_ = 0;  // device pixels of a pixel when the pictures were last asked for
  bool drawing_ = false;    // the left button is down with a tool in hand
  bool panning_ = false;
  bool pulled_ = false;  // the sheet was moved by the press in work
  QPointF panFrom_;
  QPointF pressedAt_;
  QTimer rest_;
  bool scrolling_ = false;
  QPointF scrollTo_;            // points, not yet whole ones
  int scrollFrom_[2] = {0, 0};  // the view values before
  // About what the last zoom went: the place in the viewport, what of the turned page lies there,
  // and the view after it.
  struct {
    QPointF place;
    QPointF at;
    QPoint view;
    int page = 0;
  } held_;
};

// The canvas inside a window, nullptr when it has none.
PlanCanvas* FindPlanCanvas(const QWidget& window);

}  // namespace tamo
