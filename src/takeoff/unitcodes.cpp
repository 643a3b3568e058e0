#include "takeoff/unitcodes.h"

namespace tamo {
namespace {

bool IsOneOf(const QString& text, std::initializer_list<const char*> members) {
  const QString upper = text.toUpper();
  for (const char* member : members) {
    if (upper == QLatin1String(member)) return true;
  }
  return false;
}

}  // namespace

bool IsLinearOrCount(const QString& units) {
  return IsCount(units) || IsOneOf(units, {"LF", "LM", "LY"});
}

bool IsCount(const QString& units) {
  return IsOneOf(units, {"EA", "CT", "EACH", "COUNT"});
}

bool AsksForWidth(const QString& finishArea) {
  return IsOneOf(finishArea, {"CLNG", "CEILING", "FLR", "FLOOR"});
}

int FindLine(const QStringList& lines, const QString& system) {
  for (int i = 0; i < lines.size(); ++i) {
    if (lines[i].isEmpty() || lines[i].startsWith(system)) return i;
  }
  return static_cast<int>(lines.size());
}

bool PassesNumberFilter(const Key& key) {
  if (key.Is(Key::Name::Space)) return false;
  if (!key.Is(Key::Name::Character)) return true;
  const QChar c = key.character;
  return (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == QLatin1Char('.') ||
         c == QLatin1Char('-');
}

bool IsThrownAwayInNames(const Key& key) {
  return key.Is(Key::Name::Character) && QStringLiteral("\\,\"/").contains(key.character);
}

}  // namespace tamo
