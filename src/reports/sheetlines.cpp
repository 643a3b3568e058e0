#include "reports/sheetlines.h"

#include <algorithm>
#include <iterator>

namespace tamo {
namespace {

using Sheet = SheetLines::Sheet;
using Kind = SheetChange::Kind;

// Lines that only one of the two has; their order does not count.
int Differing(std::vector<size_t> a, std::vector<size_t> b) {
  if (a == b) return 0;
  std::sort(a.begin(), a.end());
  std::sort(b.begin(), b.end());
  std::vector<size_t> differing;
  std::set_symmetric_difference(a.begin(), a.end(), b.begin(), b.end(),
                                std::back_inserter(differing));
  return static_cast<int>(differing.size());
}

QHash<QString, const Sheet*> ByName(const std::vector<Sheet>& sheets) {
  QHash<QString, const Sheet*> byName;
  for (const Sheet& sheet : sheets) byName.insert(sheet.name, &sheet);
  return byName;
}

void AddOnlyIn(const std::vector<Sheet>& sheets, const QHash<QString, const Sheet*>& others,
               Kind kind, std::vector<SheetChange>& changes) {
  for (const Sheet& sheet : sheets) {
    if (!others.contains(sheet.name))
      changes.push_back({kind, sheet.name, static_cast<int>(sheet.lines.size())});
  }
}

}  // namespace

void SheetLines::BeginSheet(SheetKind kind, const QString& name) {
  (kind == SheetKind::Room ? rooms_ : areas_).push_back({name, {}});
}

void SheetLines::Line(SheetKind kind, QStringView line) {
  (kind == SheetKind::Room ? rooms_ : areas_).back().lines.push_back(qHash(line));
}

std::vector<SheetChange> ChangedSheets(const std::vector<Sheet>& then,
                                       const std::vector<Sheet>& now) {
  const QHash<QString, const Sheet*> before = ByName(then);
  std::vector<SheetChange> changes;
  AddOnlyIn(now, before, Kind::Added, changes);
  AddOnlyIn(then, ByName(now), Kind::Removed, changes);
  for (const Sheet& sheet : now) {
    const Sheet* former = before.value(sheet.name, nullptr);
    const int lines = former == nullptr ? 0 : Differing(former->lines, sheet.lines);
    if (lines > 0) changes.push_back({Kind::Changed, sheet.name, lines});
  }
  return changes;
}

}  // namespace tamo
