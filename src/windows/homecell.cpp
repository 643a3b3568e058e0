#include "windows/homecell.h"

#include <QPainter>

#include "windows/look.h"

namespace tamo {

HomeCell::HomeCell(Weight weight) : weight_(weight) {
  setCursor(Qt::PointingHandCursor);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

QFont HomeCell::NameFont() const {
  return PromptFont();
}

QFont HomeCell::OwnFont() const {
  return weight_ == Weight::Strong ? FigureFont() : SectionFont();
}

int HomeCell::TextHeight() const {
  return QFontMetrics(NameFont()).height() + QFontMetrics(OwnFont()).height() + 2 * kGrid;
}

QSize HomeCell::sizeHint() const {
  return {26 * kGrid, TextHeight()};
}

QSize HomeCell::minimumSizeHint() const {
  return {18 * kGrid, TextHeight()};
}

void HomeCell::paintEvent(QPaintEvent*) {
  const Look& look = CurrentLook();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const bool focused = hasFocus();
  painter.setPen(QPen(focused || underMouse() ? look.accent : look.faintLine, focused ? 2 : 1));
  painter.setBrush(focused || isDown() ? look.accentGround : look.base);
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
  const QString whole = text();
  const qsizetype cut = whole.indexOf(QLatin1String(": "));
  const QString name = cut < 0 ? QString() : whole.left(cut);
  const QString figure = cut < 0 ? whole : whole.mid(cut + 2);
  const int inset = kGrid + kGrid / 2;
  QRect line = rect().adjusted(inset, kGrid, -inset, 0);
  const QFontMetrics small(NameFont());
  line.setHeight(small.height());
  painter.setFont(NameFont());
  painter.setPen(look.quiet);
  painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                   small.elidedText(name, Qt::ElideRight, line.width()));
  const QFontMetrics large(OwnFont());
  line.moveTop(line.bottom() + 1);
  line.setHeight(large.height());
  if (cut < 0) line.moveTop(HasMore() ? kGrid : (height() - line.height()) / 2);
  painter.setFont(OwnFont());
  painter.setPen(look.text);
  painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                   large.elidedText(figure, Qt::ElideRight, line.width()));
  const int top = cut < 0 ? line.bottom() + kGrid / 2 : TextHeight();
  PaintMore(painter, rect().adjusted(inset, top, -inset, -kGrid));
}

}  // namespace tamo
