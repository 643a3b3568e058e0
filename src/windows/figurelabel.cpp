#include "windows/figurelabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace tamo {

QString InTwoDecimals(const QString& text) {
  const qsizetype point = text.indexOf(u'.');
  bool number = false;
  const double value = text.toDouble(&number);
  return number && point >= 0 && text.size() - point > 3 ? QString::number(value, 'f', 2) : text;
}

QString FigureLabel::Shown() const {
  return InTwoDecimals(text());
}

QSize FigureLabel::sizeHint() const {
  return {fontMetrics().horizontalAdvance(Shown()) + 2, QLabel::sizeHint().height()};
}

void FigureLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  style()->drawItemText(&painter, rect(), Qt::AlignRight | Qt::AlignVCenter, palette(), isEnabled(),
                        Shown(), foregroundRole());
}

bool FigureLabel::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || text() == Shown()) return QLabel::event(event);
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
  return true;
}

}  // namespace tamo
