#include "windows/tamostyle.h"

#include <QEvent>
#include <QIcon>
#include <QPainter>
#include <QPlainTextEdit>
#include <QStyleFactory>
#include <QStyleOption>
#include <algorithm>

#include "windows/boxpaint.h"
#include "windows/look.h"
#include "windows/roleframe.h"
#include "windows/stylesheet.h"

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

// Fields inside other widgets have no frame of their own.
bool IsFramed(const QStyleOption* option) {
  const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
  return frame != nullptr && frame->lineWidth > 0;
}

QStyleOptionButton WithoutFocus(const QStyleOption& option) {
  QStyleOptionButton own;
  if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option)) own = *button;
  own.state &= ~QStyle::State_HasFocus;
  return own;
}

QStyleOptionButton TextOfButton(const QStyleOption& option) {
  QStyleOptionButton own = WithoutFocus(option);
  own.palette.setColor(QPalette::Disabled, QPalette::ButtonText, CurrentLook().quiet);
  return own;
}

QStyleOptionButton InsideOfChoice(const QStyleOption& option) {
  QStyleOptionButton own = WithoutFocus(option);
  own.rect.adjust(kChoiceRoom, kChoiceRoom, -kChoiceRoom, -kChoiceRoom);
  return own;
}

// The title of a menu in the menu bar.
void PaintMenuTitle(QPainter& painter, const QStyleOption& option, bool underlined) {
  const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(&option);
  if (item == nullptr) return;
  const Look& look = CurrentLook();
  const QRect place = option.rect.adjusted(0, 0, -1, 0);
  painter.fillRect(option.rect, look.window);
  if ((option.state & QStyle::State_Selected) != 0)
    PaintBox(painter, place, {look.accentGround, look.accent});
  const bool enabled = (option.state & QStyle::State_Enabled) != 0;
  painter.setPen(
      option.palette.color(enabled ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
  const int letter = underlined ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
  painter.drawText(place, Qt::AlignCenter | Qt::TextSingleLine | Qt::TextDontClip | letter,
                   item->text);
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
  switch (element) {
    case PE_IndicatorCheckBox:
      return PaintTickBox(*painter, option->rect, on, CurrentLook());
    case PE_IndicatorRadioButton:
      return PaintRound(*painter, option->rect, on, CurrentLook());
    case PE_PanelLineEdit:
      if (!IsFramed(option)) break;
      return PaintField(*painter, *option, (option->state & State_ReadOnly) != 0);
    case PE_PanelTipLabel:
      return PaintBox(*painter, option->rect, {CurrentLook().base, CurrentLook().line, 1, 0});
    case PE_PanelMenuBar:
      return;
    default:
      break;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void TamoStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
  switch (element) {
    case CE_ShapedFrame:
      if (!HasOwnFrame(widget)) break;
      return PaintOwnFrame(*painter, *option, *widget);
    case CE_PushButton: {
      PaintButton(*painter, *option);
      const QStyleOptionButton text = TextOfButton(*option);
      return QProxyStyle::drawControl(CE_PushButtonLabel, &text, painter, widget);
    }
    case CE_CheckBox:
    case CE_RadioButton: {
      PaintChoiceFocus(*painter, *option);
      const QStyleOptionButton inside = InsideOfChoice(*option);
      return QProxyStyle::drawControl(element, &inside, painter, widget);
    }
    case CE_MenuBarItem:
      return PaintMenuTitle(*painter, *option,
                            styleHint(SH_UnderlineShortcut, option, widget, nullptr) != 0);
    case CE_MenuBarEmptyArea:
      return painter->fillRect(option->rect, CurrentLook().window);
    default:
      break;
  }
  QProxyStyle::drawControl(element, option, painter, widget);
}

QRect TamoStyle::subElementRect(SubElement element, const QStyleOption* option,
                                const QWidget* widget) const {
  if (element == SE_ShapedFrameContents && HasOwnFrame(widget))
    return option->rect.marginsRemoved(RoomOfFrame(*widget));
  if (element == SE_LineEditContents && IsFramed(option))
    return option->rect.adjusted(kFieldSide, kFieldAbove, -kFieldSide, -kFieldAbove);
  return QProxyStyle::subElementRect(element, option, widget);
}

QSize TamoStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const {
  constexpr int kTitleRoom = 16;
  switch (type) {
    case CT_LineEdit:
      if (!IsFramed(option)) break;
      return {size.width() + 2 * kFieldSide, kFieldHeight};
    case CT_PushButton:
      return {size.width() + 2 * kButtonSide, std::max(size.height() + kGrid, kFieldHeight)};
    case CT_CheckBox:
    case CT_RadioButton:
      return {size.width() + pixelMetric(PM_IndicatorWidth, option, widget) +
                  pixelMetric(PM_CheckBoxLabelSpacing, option, widget) + 2 * kChoiceRoom,
              std::max(size.height(), pixelMetric(PM_IndicatorHeight, option, widget)) +
                  2 * kChoiceRoom};
    case CT_MenuBarItem:
      return size + QSize(kTitleRoom + 1, 10);
    default:
      break;
  }
  return QProxyStyle::sizeFromContents(type, option, size, widget);
}

int TamoStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                           const QWidget* widget) const {
  switch (metric) {
    case PM_MenuBarPanelWidth:
    case PM_MenuBarItemSpacing:
      return 0;
    case PM_MenuBarHMargin:
      return kGrid;
    case PM_MenuBarVMargin:
      return 2;
    case PM_ToolTipLabelFrameWidth:
      return 5;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

void TamoStyle::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  PutOnSheet(*widget, CurrentLook());
  if (auto* notes = qobject_cast<QPlainTextEdit*>(widget)) {
    // The ground of the frame is that of the text.
    notes->viewport()->setAutoFillBackground(false);
  }
  if (qobject_cast<QAbstractScrollArea*>(widget) != nullptr && HasOwnFrame(widget))
    widget->installEventFilter(this);
}

void TamoStyle::unpolish(QWidget* widget) {
  widget->removeEventFilter(this);
  if (auto* notes = qobject_cast<QPlainTextEdit*>(widget))
    notes->viewport()->setAutoFillBackground(true);
  QProxyStyle::unpolish(widget);
}

// The frame of notes and lists tells where the keyboard is.
bool TamoStyle::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
    static_cast<QWidget*>(object)->update();
  return QProxyStyle::eventFilter(object, event);
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
