#include "plans/groupsheets.h"

#include <algorithm>
#include <span>

#include "workspace/swatches.h"

namespace tamo {
namespace {

QString FreeColour(const std::vector<CountGroup>& groups) {
  const std::span swatches = std::span(kSwatches).first(kPlanSwatches);
  for (const SwatchRow& swatch : swatches) {
    const QLatin1String colour(swatch.stored);
    const bool taken = std::any_of(groups.begin(), groups.end(),
                                   [&](const CountGroup& group) { return group.colour == colour; });
    if (!taken) return colour;
  }
  return QLatin1String(swatches[groups.size() % swatches.size()].stored);
}

}  // namespace

// Names that differ in their case only are one group.
bool GroupSheets::ChooseGroup(const QString& name) {
  const QString wanted = GroupNameOf(name);
  if (wanted.isEmpty()) return false;
  const std::vector<CountGroup> groups = Groups();
  const auto known = std::find_if(groups.begin(), groups.end(), [&](const CountGroup& group) {
    return group.name.compare(wanted, Qt::CaseInsensitive) == 0;
  });
  group_ = known != groups.end() ? *known : CountGroup{wanted, FreeColour(groups), 0, 0};
  return true;
}

std::vector<CountGroup> GroupSheets::Groups() const {
  std::vector<CountGroup> groups = GroupsOf(MarksAsDrawn(), Page());
  const bool known = std::any_of(groups.begin(), groups.end(), [this](const CountGroup& group) {
    return group.name == group_.name;
  });
  if (!known && !group_.name.isEmpty()) groups.push_back({group_.name, group_.colour, 0, 0});
  return groups;
}

const std::vector<Mark>& GroupSheets::Totals() const {
  if (totalled_ != MarksRevision()) totals_ = GroupTotalsOf(MarksAsDrawn(), MarkerSize());
  totalled_ = MarksRevision();
  return totals_;
}

void GroupSheets::RecolourGroup(const QString& colour) {
  if (group_.name.isEmpty() || !IsColourCode(colour)) return;
  group_.colour = colour;
  std::vector<Mark> marks;
  for (const Mark& mark : MarksAsDrawn()) {
    if (mark.kind != Mark::Kind::Grouped || mark.group != group_.name) continue;
    marks.push_back(mark);
    marks.back().colour = colour;
  }
  ChangeMarks(marks);
}

// In the colour of its newest circle: a change of colour may have been taken back.
void GroupSheets::AddToGroup(const std::vector<PagePoint>& places) {
  for (const CountGroup& group : Groups()) {
    if (group.name == group_.name) group_.colour = group.colour;
  }
  const std::vector<int> numbers = FreeNumbers(MarksAsDrawn(), group_.name, places.size());
  std::vector<Mark> marks;
  for (size_t i = 0; i < places.size(); ++i) {
    Mark mark = NewMark(Mark::Kind::Grouped, {places[i]});
    mark.colour = group_.colour;
    mark.group = group_.name;
    mark.label = GroupLabel(group_.name, numbers[i]);
    marks.push_back(std::move(mark));
  }
  AddMarks(std::move(marks));
}

}  // namespace tamo
