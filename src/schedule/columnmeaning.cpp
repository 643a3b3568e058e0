#include "schedule/columnmeaning.h"

#include <utility>

namespace tamo {
namespace {

constexpr std::pair<ColumnRole, const char*> kMeanings[] = {
    {ColumnRole::Number, "Number"},
    {ColumnRole::Name, "Name"},
    {ColumnRole::NumberAndName, "Number and Name"},
    {ColumnRole::Floor, "Floor"},
    {ColumnRole::Base, "Base"},
    {ColumnRole::North, "North"},
    {ColumnRole::East, "East"},
    {ColumnRole::South, "South"},
    {ColumnRole::West, "West"},
    {ColumnRole::Walls, "Walls"},
    {ColumnRole::NorthSouth, "North and South"},
    {ColumnRole::EastWest, "East and West"},
    {ColumnRole::Ceiling, "Ceiling"},
    {ColumnRole::Height, "Height"},
    {ColumnRole::Remarks, "Remarks"},
    {ColumnRole::Other, "none"}};

}  // namespace

QString MeaningName(ColumnRole role) {
  for (const auto& [meaning, name] : kMeanings) {
    if (meaning == role) return QLatin1String(name);
  }
  return {};
}

std::optional<ColumnRole> MeaningCalled(const QString& name) {
  const QString asked = name.simplified();
  if (asked.isEmpty()) return std::nullopt;
  std::optional<ColumnRole> begins;
  int beginning = 0;
  for (const auto& [meaning, known] : kMeanings) {
    const QString text = QLatin1String(known);
    if (text.compare(asked, Qt::CaseInsensitive) == 0) return meaning;
    if (!text.startsWith(asked, Qt::CaseInsensitive)) continue;
    begins = meaning;
    ++beginning;
  }
  return beginning == 1 ? begins : std::nullopt;
}

QStringList MeaningNames() {
  QStringList names;
  for (const auto& [meaning, name] : kMeanings) names.append(QLatin1String(name));
  return names;
}

}  // namespace tamo
