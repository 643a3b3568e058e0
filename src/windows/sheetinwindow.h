#pragma once

#include <QPointF>
#include <QSizeF>
#include <QTransform>

#include "plans/planpictures.h"
#include "plans/sheetview.h"

namespace tamo {

// How the sheet in front lies in a window: as large as the zoom says, turned by quarters, in the
// middle where it is smaller than the window, else with the place of the view at the window's
// corner. It is that of the moment: another zoom, turn, page or window is another one.
//
// Places of the page are points before the view's turn; pixels are device independent.
class SheetInWindow {
 public:
  SheetInWindow(const SheetView& sheets, const QSizeF& window);

  double Scale() const { return scale_; }            // pixels of a point
  int Turn() const { return turn_; }                 // 0, 90, 180, 270 degrees clockwise
  const QSizeF& Page() const { return turned_; }     // points, of the page as it is turned
  QSizeF Shown() const { return window_ / scale_; }  // points that the window has room for
  QPointF Corner() const { return corner_; }         // of the turned page, in the window

  QPointF InWindow(PagePoint at) const;
  PagePoint OnPage(const QPointF& place) const;  // of a place in the window
  // The same in points of the turned page, from its corner.
  QPointF Turned(PagePoint at) const;
  QPointF TurnedAt(const QPointF& place) const;

  QTransform ToWindow() const;  // from points of the page to the window
  // What is to be painted of the page, in device pixels.
  PlanView View(double devicePixelRatio) const;

 private:
  int page_;
  int zoom_;  // per cent
  double scale_;
  int turn_;
  QTransform turning_;  // of points of the page
  QSizeF turned_;
  QSizeF window_;
  QPointF corner_;
};

}  // namespace tamo
