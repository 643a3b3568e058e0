#pragma once

#include <QProxyStyle>

class QPainter;
class QRectF;

namespace tamo {

struct Look;

// A box of a check list or a check box, a round of an option: a frame that is seen on every ground.
void PaintTickBox(QPainter& painter, const QRectF& place, bool ticked, const Look& look);

// The toolkit's plain style, with the program's own fields, lists, buttons, choices, menu bars,
// tips and frames (roles.h).
class TamoStyle : public QProxyStyle {
 public:
  TamoStyle();
  void polish(QWidget* widget) override;
  void unpolish(QWidget* widget) override;
  using QProxyStyle::polish;
  using QProxyStyle::unpolish;
  bool eventFilter(QObject* object, QEvent* event) override;

  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  QRect subElementRect(SubElement element, const QStyleOption* option,
                       const QWidget* widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* more) const override;
  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                     const QWidget* widget) const override;
};

}  // namespace tamo
