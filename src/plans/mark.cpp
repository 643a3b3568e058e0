#include "plans/mark.h"

#include <algorithm>
#include <cmath>

namespace tamo {

bool IsOnPaper(double points) {
  return std::isfinite(points) && std::abs(points) < 1e6;
}

bool IsPlace(PagePoint at) {
  return IsOnPaper(at.x) && IsOnPaper(at.y);
}

bool IsCount(Mark::Kind kind) {
  return kind == Mark::Kind::Circle || kind == Mark::Kind::Grouped;
}

bool IsLabel(Mark::Kind kind) {
  return kind == Mark::Kind::Legend || kind == Mark::Kind::Total;
}

bool IsOutline(Mark::Kind kind) {
  return kind == Mark::Kind::Area || kind == Mark::Kind::Perimeter || kind == Mark::Kind::CutOut;
}

bool FitsKind(Mark::Kind kind, size_t points) {
  if (IsCount(kind) || IsLabel(kind)) return points == 1;
  if (kind == Mark::Kind::Line) return points == 2;
  return points >= (IsOutline(kind) ? 3U : 2U) && points <= kMostMarkPoints;
}

bool IsSurface(Mark::Kind kind) {
  return kind == Mark::Kind::Area || kind == Mark::Kind::CutOut;
}

QString TitleOf(const QString& text) {
  return text.simplified().left(kLongestTitle).trimmed();
}

void BringToBounds(Mark& mark) {
  constexpr double kLeastWidth = 0.01;
  constexpr double kMostWidth = 1000;
  if (!(mark.width >= kLeastWidth && mark.width <= kMostWidth)) mark.width = Mark().width;
  const int longest = mark.kind == Mark::Kind::Legend ? kLongestLegend : kLongestMarkLabel;
  if (mark.label.size() > longest) mark.label.truncate(longest);
  if (mark.kept.size() > kLongestKept) mark.kept.clear();
  mark.title = TitleOf(mark.title);
}

QString KindInWords(Mark::Kind kind) {
  static const char* const words[] = {"Line",    "Count",  "Polyline",    "Area", "Perimeter",
                                      "Cut-out", "Legend", "Group count", "Total"};
  return QLatin1String(words[static_cast<int>(kind)]);
}

double ValueOfMark(const Mark& mark) {
  if (IsCount(mark.kind)) return 1;
  if (IsLabel(mark.kind)) return 0;
  const QString number = mark.label.section(QLatin1Char(' '), 0, 0);
  const double value = QString(number).remove(QLatin1Char(',')).toDouble();
  return std::isfinite(value) ? value : 0;
}

QString LengthText(double length) {
  if (!std::isfinite(length) || std::abs(length) > 1e14) return QStringLiteral("0.0");
  // Rounding works on the 15 digits a person would see, so 0.25 and 2.45 go up as on paper.
  const double tenths = std::abs(length) * 10;
  const double seen = QString::number(tenths, 'g', 15).toDouble();
  const auto whole = static_cast<qint64>(std::floor(seen + 0.5));
  QString text = QString::number(whole / 10);
  for (qsizetype at = text.size() - 3; at > 0; at -= 3) text.insert(at, QLatin1Char(','));
  text += QLatin1Char('.') + QString::number(whole % 10);
  return length < 0 && whole != 0 ? QLatin1Char('-') + text : text;
}

QString MarkName(int number, unsigned random) {
  return QLatin1String(kMarkPrefix) + QStringLiteral("%1-%2")
                                          .arg(number, 6, 10, QLatin1Char('0'))
                                          .arg(random, 8, 16, QLatin1Char('0'));
}

int MarkNumber(const QString& name) {
  const QLatin1String prefix(kMarkPrefix);
  if (!name.startsWith(prefix)) return 0;
  const qsizetype end = name.indexOf(QLatin1Char('-'), prefix.size());
  bool ok = false;
  const int number = name.mid(prefix.size(), end < 0 ? -1 : end - prefix.size()).toInt(&ok);
  return ok && number > 0 && number <= kHighestMarkNumber ? number : 0;
}

double Distance(PagePoint from, PagePoint to) {
  return std::hypot(to.x - from.x, to.y - from.y);
}

bool IsColourCode(const QString& code) {
  return code.size() == 9 && std::all_of(code.begin(), code.end(), [](QChar c) {
           return c >= QLatin1Char('0') && c <= QLatin1Char('9');
         });
}

namespace {

double Luminance(const double (&parts)[3]) {
  double light[3];
  for (int i = 0; i < 3; ++i) {
    light[i] = parts[i] <= 0.03928 ? parts[i] / 12.92 : std::pow((parts[i] + 0.055) / 1.055, 2.4);
  }
  return 0.2126 * light[0] + 0.7152 * light[1] + 0.0722 * light[2];
}

}  // namespace

unsigned ReadableOnWhite(unsigned colour) {
  constexpr double kLeastContrast = 4.5;
  constexpr double kDarker = 0.95;
  double parts[3];
  for (int i = 0; i < 3; ++i) parts[i] = (colour >> (16 - 8 * i) & 255) / 255.0;
  while (1.05 / (Luminance(parts) + 0.05) < kLeastContrast) {
    for (double& part : parts) part *= kDarker;
  }
  unsigned dark = 0;
  for (const double part : parts) dark = dark << 8 | static_cast<unsigned>(part * 255);
  return dark;
}

unsigned ColourNumber(const QString& code) {
  if (!IsColourCode(code)) return 0;
  unsigned colour = 0;
  for (int part = 0; part < 3; ++part) {
    const unsigned value = std::min(255U, code.mid(part * 3, 3).toUInt());
    colour = colour << 8 | value;
  }
  return colour;
}

}  // namespace tamo
