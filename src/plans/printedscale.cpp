#include "plans/printedscale.h"

#include <QRegularExpression>

#include "common/numbers.h"
#include "plans/fraction.h"
#include "plans/lengthtext.h"

namespace tamo {
namespace {

QString Plain(const QString& text) {
  QString plain = text.toUpper();
  for (const char* sign : {"\u2019", "\u2018", "\u2032"})
    plain.replace(QString::fromUtf8(sign), QLatin1String("'"));
  for (const char* sign : {"\u201d", "\u201c", "\u2033", "''"})
    plain.replace(QString::fromUtf8(sign), QLatin1String("\""));
  return plain.simplified();
}

std::optional<PrintedScale> NotToScale(const QString& plain) {
  static const QRegularExpression words(
      QStringLiteral("\\bNOT TO SCALE\\b|\\bN\\.T\\.S\\b|\\bNTS\\b"));
  if (!words.match(plain).hasMatch()) return std::nullopt;
  PrintedScale scale;
  scale.notToScale = true;
  return scale;
}

// 1/8" = 1'-0", 1 1/2"=1'-0", 1" = 20', 1 IN = 20 FT.
std::optional<PrintedScale> Imperial(const QString& plain) {
  static const QRegularExpression equation(QStringLiteral(
      "(?<![\\d/.'-])(\\d+[ -]\\d+/\\d+|\\d+/\\d+|\\d*\\.?\\d+) ?(?:\"|IN\\.?|INCH) ?= ?"
      "(\\d+(?:\\.\\d+)? ?(?:'|FT\\.?|FEET|FOOT)(?: ?-? ?\\d+(?: \\d+/\\d+)? ?(?:\"|IN\\.?)?)?)"));
  const auto match = equation.match(plain);
  if (!match.hasMatch()) return std::nullopt;
  PrintedScale scale;
  scale.scale1 = match.captured(1).replace(QLatin1Char('-'), QLatin1Char(' '));
  const double inches = FractionValue(scale.scale1);
  const std::optional<double> feet = FeetOf(match.captured(2));
  if (inches <= 0 || !feet.has_value()) return std::nullopt;
  scale.scale2 = NumberText(*feet);
  scale.feetPerInch = *feet / inches;
  return scale;
}

// 1:100, where the line says that it is a scale.
std::optional<PrintedScale> Ratio(const QString& plain) {
  static const QRegularExpression ratio(
      QStringLiteral("\\bSCALE\\b[ :=@]*1 ?[:/] ?(\\d{1,5})(?![\\d/\"'])"));
  const auto match = ratio.match(plain);
  const double times = match.captured(1).toDouble();
  if (!match.hasMatch() || times < 1) return std::nullopt;
  PrintedScale scale;
  scale.scale1 = QStringLiteral("1");
  scale.scale2 = NumberText(times / 12);
  scale.feetPerInch = times / 12;
  return scale;
}

}  // namespace

std::optional<PrintedScale> ScaleOfText(const QString& text) {
  if (text.size() > 400) return std::nullopt;
  const QString plain = Plain(text);
  for (const auto& read : {Imperial, Ratio, NotToScale}) {
    if (std::optional<PrintedScale> scale = read(plain)) return scale;
  }
  return std::nullopt;
}

std::vector<PrintedScale> ScalesOf(const PageContent& content) {
  return ScalesOf(TextLinesOf(content));
}

std::vector<PrintedScale> ScalesOf(const std::vector<PageTextLine>& lines) {
  std::vector<PrintedScale> scales;
  for (const PageTextLine& line : lines) {
    std::optional<PrintedScale> scale = ScaleOfText(line.text);
    if (!scale.has_value()) continue;
    scale->at = line.box.Middle();
    scales.push_back(*scale);
  }
  return scales;
}

}  // namespace tamo
