#include "export/pageframe.h"

#include <QFont>
#include <QGuiApplication>

namespace tamo {
namespace {

constexpr double kLine = 20;  // points of a line of the frame, its distance included
constexpr int kLetters = 9;
constexpr int kFine = 10;  // fonts have sizes of whole pixels

}  // namespace

double PageFrame::Top() const {
  return company.isEmpty() ? 0 : kLine;
}

double PageFrame::Bottom() const {
  return project.isEmpty() && date.isEmpty() ? 0 : kLine;
}

void PageFrame::Paint(QPainter& painter, const QSizeF& paper, int page, int pages,
                      double dotsPerInch) const {
  painter.save();
  painter.scale(dotsPerInch / 72 / kFine, dotsPerInch / 72 / kFine);
  QFont font = QGuiApplication::font();
  font.setPixelSize(kLetters * kFine);
  painter.setFont(font);
  painter.setPen(Qt::black);
  const double width = paper.width() * kFine;
  const double height = paper.height() * kFine;
  const QRectF top(0, 0, width, kLine * kFine);
  const QRectF foot(0, height - kLine * kFine, width, kLine * kFine);
  if (Top() > 0) painter.drawText(top, Qt::AlignLeft | Qt::AlignTop, company);
  if (Bottom() > 0) {
    painter.drawText(foot, Qt::AlignLeft | Qt::AlignBottom, project);
    painter.drawText(foot, Qt::AlignHCenter | Qt::AlignBottom, date);
    painter.drawText(foot, Qt::AlignRight | Qt::AlignBottom,
                     QStringLiteral("Page %1 of %2").arg(page).arg(pages));
  }
  painter.restore();
}

QPageSize::PageSizeId PaperOf(const QLocale& locale) {
  switch (locale.territory()) {
    case QLocale::UnitedStates:
    case QLocale::Canada:
    case QLocale::Mexico:
    case QLocale::Philippines:
    case QLocale::PuertoRico:
    case QLocale::Chile:
    case QLocale::Colombia:
    case QLocale::Venezuela:
      return QPageSize::Letter;
    default:
      return QPageSize::A4;
  }
}

}  // namespace tamo
