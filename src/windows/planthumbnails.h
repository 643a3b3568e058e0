#pragma once

#include <QAbstractScrollArea>

#include <functional>
#include <map>
#include <memory>

#include "common/desk.h"
#include "plans/pdfdraw.h"
#include "plans/planpictures.h"
#include "plans/sheetnumber.h"
#include "windows/display.h"

namespace tamo {

// Small pictures of all pages; a click turns to one.
class PlanThumbnails : public QAbstractScrollArea {
 public:
  PlanThumbnails(PdfDraw& viewer, PlanPictures* pictures, Desk& desk, QWidget* parent = nullptr);
  void PagesChanged();
  QSize sizeHint() const override;
  std::function<SheetTitle(int page)> titleOf;  // what a sheet is called; may be empty

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  bool viewportEvent(QEvent* event) override;

 private:
  int PageAt(const QPoint& place) const;  // 0 for none
  void PaintCaption(QPainter& painter, int page, const QRect& cell) const;
  int CellHeight() const;
  int FirstInSight() const;  // pages; the last is less than the first when there is none
  int LastInSight() const;
  void TakePictures();

  PdfDraw& viewer_;
  PlanPictures* pictures_;
  Desk& desk_;
  int shownPage_ = 0;
  std::map<int, std::shared_ptr<const Picture>> shown_;  // the pictures in sight, by page
};

class ThumbnailsBinding : public Binding {
 public:
  ThumbnailsBinding(Display& display, Control& control, PlanThumbnails& thumbnails);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
};

}  // namespace tamo
