#include "windows/tamostyle.h"

#include <QIcon>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

#include "windows/look.h"

namespace tamo {

void PaintTickBox(QPainter& painter, const QRectF& place, bool ticked, const Look& look) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const double side = std::min(place.width(), place.height());
  const QRectF box(place.center() - QPointF(side / 2, side / 2), QSizeF(side, side));
  painter.setPen(QPen(ticked ? look.accent : look.line, 1.2));
  painter.setBrush(look.base);
  painter.drawRoundedRect(box.adjusted(0.6, 0.6, -0.6, -0.6), 2, 2);
  if (ticked) {
    painter.setPen(QPen(look.accent, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF points[] = {box.topLeft() + QPointF(0.24, 0.53) * side,
                              box.topLeft() + QPointF(0.43, 0.73) * side,
                              box.topLeft() + QPointF(0.77, 0.29) * side};
    painter.drawPolyline(points, 3);
  }
  painter.restore();
}

namespace {

void PaintRound(QPainter& painter, const QRectF& place, bool selected, const Look& look) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const double side = std::min(place.width(), place.height());
  painter.setPen(QPen(selected ? look.accent : look.line, 1.2));
  painter.setBrush(look.base);
  painter.drawEllipse(place.center(), side / 2 - 0.6, side / 2 - 0.6);
  if (selected) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.accent);
    painter.drawEllipse(place.center(), side / 4, side / 4);
  }
  painter.restore();
}

// Two arrow heads: a menu bar goes on.
QIcon FurtherIcon() {
  constexpr int kSide = 32;
  QPixmap picture(kSide, kSide);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(CurrentLook().text, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  for (const double left : {7.0, 17.0}) {
    const QPointF head[] = {{left, 8}, {left + 8, 16}, {left, 24}};
    painter.drawPolyline(head, 3);
  }
  return picture;
}

}  // namespace

TamoStyle::TamoStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void TamoStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const {
  const bool on = (option->state & State_On) != 0;
  if (element == PE_IndicatorCheckBox) {
    PaintTickBox(*painter, option->rect, on, CurrentLook());
  } else if (element == PE_IndicatorRadioButton) {
    PaintRound(*painter, option->rect, on, CurrentLook());
  } else {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

// A sign of a message: a letter in a round, in the accent of the program.
QIcon MessageIcon(const QString& letter) {
  constexpr int kSide = 96;
  QPixmap picture(kSide, kSide);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  const Look& look = CurrentLook();
  painter.setPen(QPen(look.accent, 6));
  painter.setBrush(look.accentGround);
  painter.drawEllipse(QRectF(6, 6, kSide - 12, kSide - 12));
  QFont font = SectionFont();
  font.setPixelSize(58);
  font.setWeight(QFont::Bold);
  painter.setFont(font);
  painter.drawText(QRectF(0, 0, kSide, kSide), Qt::AlignCenter, letter);
  return picture;
}

// Every menu bar asks for this one at once; the style's own is a picture file, for which all
// readers of pictures would be loaded at the start.
QIcon TamoStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                              const QWidget* widget) const {
  if (icon == SP_ToolBarHorizontalExtensionButton) return FurtherIcon();
  if (icon == SP_MessageBoxInformation) return MessageIcon(QStringLiteral("i"));
  if (icon == SP_MessageBoxQuestion) return MessageIcon(QStringLiteral("?"));
  if (icon == SP_MessageBoxWarning || icon == SP_MessageBoxCritical)
    return MessageIcon(QStringLiteral("!"));
  return QProxyStyle::standardIcon(icon, option, widget);
}

int TamoStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* more) const {
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  return QProxyStyle::styleHint(hint, option, widget, more);
}

}  // namespace tamo
