#pragma once

#include <QLocale>
#include <QPageSize>
#include <QPainter>
#include <QSizeF>
#include <QString>

namespace tamo {

// What stands around a printed page: the company on top, when there is one, and the project, the
// date and the page's number at the foot.
struct PageFrame {
  QString company;
  QString project;
  QString date;

  // Points that it takes off a page's height.
  double Top() const;
  double Bottom() const;
  // `paper`: what can be printed on, in points. The painter stands at its top left corner.
  void Paint(QPainter& painter, const QSizeF& paper, int page, int pages, double dotsPerInch) const;
};

// Letter where offices use it, else A4.
QPageSize::PageSizeId PaperOf(const QLocale& locale);

}  // namespace tamo
