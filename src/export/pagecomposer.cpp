#include "export/pagecomposer.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QHash>
#include <QPainter>
#include <algorithm>

#include "export/fixedfont.h"

namespace tamo {
namespace {

constexpr double kLeading = 1.1;  // height of a line over the height of its font
constexpr double kLeastScale = 0.8;

double WidthOf(const PageComposer::Line& line) {
  return static_cast<double>(line.text.size()) * line.points / 2.0;
}

double HeightOf(const PageComposer::Line& line) {
  return line.points * kLeading;
}

// As large as it is meant, or as the sheet allows.
double ScaleFor(const PageComposer::Page& page, double width, double height) {
  double wide = 1;
  double high = 1;
  for (const PageComposer::Line& line : page) {
    wide = std::max(wide, WidthOf(line));
    high += HeightOf(line);
  }
  const double fit = std::min(1.0, height / high);
  return std::min(width / wide, std::max(fit, kLeastScale));
}

// Looking for a family takes its time, and a large report has a million lines.
QFont FontNamed(const QString& name) {
  static QHash<QString, QFont> known;
  const auto found = known.constFind(name);
  if (found != known.constEnd()) return *found;
  return *known.insert(name, QFontDatabase::hasFamily(name) ? QFont(name) : FixedFont());
}

}  // namespace

void PageComposer::SetFont(const QString& name, int points) {
  font_ = name;
  points_ = std::clamp(points, 4, 72);
}

void PageComposer::Add(const QString& text, bool heavy) {
  if (!open_) pages_.emplace_back();
  open_ = true;
  QString whole = text;
  while (!whole.isEmpty() && whole.back().isSpace()) whole.chop(1);
  pages_.back().push_back({whole, font_, points_, heavy});
}

void PageComposer::EndPage() {
  open_ = false;
}

void PageComposer::Clear() {
  pages_.clear();
  open_ = false;
}

std::vector<PageComposer::Sheet> PageComposer::Sheets(double width, double height) const {
  double scale = 1;
  for (const Page& page : pages_) scale = std::min(scale, ScaleFor(page, width, height));
  std::vector<Sheet> sheets;
  for (const Page& page : pages_) {
    double used = 0;
    sheets.push_back({{}, scale});
    for (const Line& line : page) {
      if (!sheets.back().lines.empty() && used + HeightOf(line) * scale > height) {
        sheets.push_back({{}, scale});
        used = 0;
      }
      used += HeightOf(line) * scale;
      sheets.back().lines.push_back(line);
    }
  }
  return sheets;
}

void PageComposer::Paint(QPainter& painter, const Sheet& sheet, double dotsPerInch) {
  painter.save();
  painter.scale(dotsPerInch / 72 * sheet.scale, dotsPerInch / 72 * sheet.scale);
  painter.setPen(Qt::black);
  double top = 0;
  for (const Line& line : sheet.lines) {
    QFont font = FontNamed(line.font);
    // Ten times as large as meant and made small again: the painter's own sizes are whole pixels.
    constexpr double kFine = 10;
    font.setPixelSize(static_cast<int>(line.points * kFine));
    if (line.heavy) font.setWeight(QFont::DemiBold);
    const QFontMetricsF metrics(font);
    const double one = metrics.horizontalAdvance(QLatin1Char('0'));
    painter.save();
    painter.translate(0, top + line.points * 0.9);
    painter.scale(line.points / 2.0 / one, 1 / kFine);
    painter.setFont(font);
    painter.drawText(QPointF(0, 0), line.text);
    painter.restore();
    top += HeightOf(line);
  }
  painter.restore();
}

}  // namespace tamo
