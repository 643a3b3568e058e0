#pragma once

#include <QByteArray>
#include <QString>

#include "plans/planengine.h"

namespace tamo {

// A part of a sheet as a picture in shades of grey.
struct GreyPicture {
  int width = 0;  // pixels
  int height = 0;
  int dotsPerInch = 300;
  PagePoint corner;   // where its top left pixel lies on the page, points
  QByteArray pixels;  // row by row, a byte each: 0 is black, 255 white

  double PixelsPerPoint() const { return dotsPerInch / 72.0; }
};

// Paints `area` (points) of page `page` (from 1) with 300 dots an inch, with fewer where that is
// too much. Empty when it is done; or why not, in plain words. Any thread but that of the windows.
QString PaintGrey(EnginePlan& plan, int page, const PageBox& area, CancelFlag& stop,
                  GreyPicture& picture);

}  // namespace tamo
