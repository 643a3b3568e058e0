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

}  // namespace tamo
