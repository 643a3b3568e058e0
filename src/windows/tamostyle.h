#pragma once

#include <QProxyStyle>

class QPainter;
class QRectF;

namespace tamo {

struct Look;

// A box of a check list or a check box, a round of an option: a frame that is seen on every ground.
void PaintTickBox(QPainter& painter, const QRectF& place, bool ticked, const Look& look);

// The toolkit's plain style with boxes and rounds that can be seen in the dark, too.
class TamoStyle : public QProxyStyle {
 public:
  TamoStyle();
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* more) const override;
  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                     const QWidget* widget) const override;
};

}  // namespace tamo
