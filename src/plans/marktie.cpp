#include "plans/marktie.h"

#include <QStringList>
#include <cmath>

namespace tamo {
namespace {

constexpr char kVersion[] = "1";
constexpr int kParts = 12;
constexpr qsizetype kLongestPart = 400;

QString OneLine(QString text) {
  for (QChar& c : text) {
    if (c == QLatin1Char('\n') || c == QLatin1Char('\r')) c = QLatin1Char(' ');
  }
  return text.left(kLongestPart);
}

QString Exact(double number) {
  return QString::number(number, 'g', 15);
}

bool TakeNumber(const QString& text, double& number) {
  bool ok = false;
  number = text.toDouble(&ok);
  return ok && std::isfinite(number) && std::abs(number) < 1e15;
}

QString WithKind(const QString& kind, const QString& name) {
  return name.startsWith(kind, Qt::CaseInsensitive) ? name : kind + QLatin1Char(' ') + name;
}

}  // namespace

QString TakeoffPlace::InWords() const {
  return WithKind(area ? QStringLiteral("Area") : QStringLiteral("Room"), sheet) +
         QStringLiteral(", ") + system;
}

QString TextOfTie(const MarkTie& tie) {
  QStringList parts{QLatin1String(kVersion),
                    tie.place.project,
                    tie.place.area ? QStringLiteral("area") : QStringLiteral("room"),
                    tie.place.sheet,
                    tie.place.system,
                    tie.entry,
                    tie.height ? QStringLiteral("height") : QStringLiteral("length"),
                    tie.said,
                    tie.units,
                    Exact(tie.factor),
                    Exact(tie.before),
                    Exact(tie.after)};
  for (QString& part : parts) part = OneLine(part);
  return parts.join(QLatin1Char('\n'));
}

std::optional<MarkTie> TieOfText(const QString& text) {
  const QStringList parts = text.split(QLatin1Char('\n'));
  if (parts.size() != kParts || parts[0] != QLatin1String(kVersion)) return std::nullopt;
  for (const QString& part : parts) {
    if (part.size() > kLongestPart) return std::nullopt;
  }
  MarkTie tie;
  tie.place = {parts[1], parts[2] == QLatin1String("area"), parts[3], parts[4]};
  tie.entry = parts[5];
  tie.height = parts[6] == QLatin1String("height");
  tie.said = parts[7];
  tie.units = parts[8];
  if (!TakeNumber(parts[9], tie.factor) || !TakeNumber(parts[10], tie.before) ||
      !TakeNumber(parts[11], tie.after) || tie.place.sheet.isEmpty())
    return std::nullopt;
  return tie;
}

}  // namespace tamo
