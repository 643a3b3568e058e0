#include "schedule/greypicture.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace tamo {
namespace {

constexpr double kMostPixels = 40e6;
constexpr double kLongestSide = 32000;  // pixels
constexpr int kFewestDots = 100;        // an inch: below that no letter of a schedule can be read
constexpr int kMostDots = 300;
constexpr int kStrip = 256;  // rows that are painted at once

int DotsFor(const PageBox& area) {
  const double inches = area.Width() / 72 * area.Height() / 72;
  const double side = std::max(area.Width(), area.Height()) / 72;
  return int(std::min({double(kMostDots), std::sqrt(kMostPixels / inches), kLongestSide / side}));
}

char GreyOf(uint32_t pixel) {
  const uint32_t red = pixel >> 16 & 0xff, green = pixel >> 8 & 0xff, blue = pixel & 0xff;
  return static_cast<char>((red * 77 + green * 151 + blue * 28) >> 8);
}

QString NotPainted(const QString& why) {
  return QStringLiteral("The picture of the sheet can't be painted: %1.").arg(why);
}

// Strip by strip, so that no more memory than for the grey is needed.
bool PaintStrips(EnginePlan& plan, const LoadedPage& page, PaintPart part, CancelFlag& stop,
                 GreyPicture& picture) {
  const int top = part.top;
  std::vector<uint32_t> strip(size_t(picture.width) * kStrip);
  for (int done = 0; done < picture.height; done += kStrip) {
    part.top = top + done;
    part.height = std::min(kStrip, picture.height - done);
    if (!plan.Paint(page, part, stop, strip.data())) return false;
    const auto end = strip.begin() + std::ptrdiff_t(picture.width) * part.height;
    std::transform(strip.begin(), end, picture.pixels.begin() + qsizetype(picture.width) * done,
                   GreyOf);
  }
  return true;
}

}  // namespace

QString PaintGrey(EnginePlan& plan, int page, const PageBox& area, CancelFlag& stop,
                  GreyPicture& picture) {
  const std::shared_ptr<LoadedPage> loaded = plan.LoadPage(page, stop);
  if (loaded == nullptr) return NotPainted(QStringLiteral("the page is damaged"));
  const PageBox part = area.Cut({0, 0, loaded->Size().width, loaded->Size().height});
  if (part.Width() < 1 || part.Height() < 1) return NotPainted(QStringLiteral("the box is empty"));
  picture.dotsPerInch = DotsFor(part);
  if (picture.dotsPerInch < kFewestDots) {
    return NotPainted(QStringLiteral("it is too large. Draw a box around the table only"));
  }
  const double scale = picture.PixelsPerPoint();
  PaintPart paint;
  paint.pixelsPerPoint = scale;
  paint.left = int(part.left * scale);
  paint.top = int(part.top * scale);
  paint.width = picture.width = std::max(1, int(part.Width() * scale));
  picture.height = std::max(1, int(part.Height() * scale));
  picture.corner = {paint.left / scale, paint.top / scale};
  picture.pixels.resize(qsizetype(picture.width) * picture.height);
  const bool done = PaintStrips(plan, *loaded, paint, stop, picture);
  return done ? QString() : NotPainted(QStringLiteral("the page can't be shown"));
}

}  // namespace tamo
