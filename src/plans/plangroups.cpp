#include "plans/plangroups.h"

#include "common/key.h"

namespace tamo {
namespace {

QString RowOf(const CountGroup& group) {
  const QString part = group.onPage == group.total
                           ? QString()
                           : QStringLiteral(" (%1 on this sheet)").arg(group.onPage);
  return QStringLiteral("%1: %2%3").arg(group.name, QString::number(group.total), part);
}

}  // namespace

PlanGroups::PlanGroups(const Kit& kit, OstControls& form, PdfDraw& viewer, PlanMeasure& measure)
    : kit_(kit), form_(form), viewer_(viewer), measure_(measure) {
  form_.GroupFrame.Hide();
  form_.GroupName.PutInto(form_.GroupFrame);
  form_.GroupList.PutInto(form_.GroupFrame);
  form_.GroupName.onGotFocus = [this] { form_.GroupName.SelectAll(); };
  form_.GroupList.onSelect = [this] { Selected(); };
  const auto keys = [this](Key& key) {
    const bool escape = key.Is(Key::Name::Escape);
    if (!escape && !key.IsEnter()) return;
    key.Drop();
    escape ? Close() : Take();
  };
  form_.GroupName.onKey = keys;
  form_.GroupList.onKey = keys;
}

void PlanGroups::Close() {
  form_.GroupFrame.Hide();
  kit_.desk.Focus(form_.picPdfDraw);
}

void PlanGroups::Open() {
  ShowGroups();
  form_.GroupFrame.Show();
  kit_.desk.Focus(form_.GroupName);
}

void PlanGroups::Selected() {
  if (showing_ || form_.GroupList.Index() < 0) return;
  const std::vector<CountGroup> groups = viewer_.Groups();
  const auto row = static_cast<size_t>(form_.GroupList.Index());
  if (row < groups.size()) form_.GroupName.SetText(groups[row].name);
}

void PlanGroups::Take() {
  if (!viewer_.ChooseGroup(form_.GroupName.Text())) {
    form_.ToolHint.SetCaption(
        QStringLiteral("Type a name for the group, or take one of the list."));
    return;
  }
  viewer_.PickTool(PlanTool::Grouping);
  kit_.desk.Focus(form_.picPdfDraw);
}

void PlanGroups::ToolPicked(PlanTool tool) {
  if (tool != PlanTool::Grouping) return;
  form_.GroupFrame.Show();
  ShowGroups();
  Say();
}

void PlanGroups::Say() {
  for (const CountGroup& group : viewer_.Groups()) {
    if (group.name != viewer_.Group()) continue;
    form_.ToolHint.SetCaption(
        QStringLiteral("Group %1. Each press counts one more; G takes another group.")
            .arg(RowOf(group)));
  }
}

void PlanGroups::ShowGroups() {
  showing_ = true;
  QStringList rows;
  int chosen = -1;
  for (const CountGroup& group : viewer_.Groups()) {
    if (group.name == viewer_.Group()) chosen = int(rows.size());
    rows += RowOf(group);
  }
  form_.GroupList.SetRows(rows);
  if (chosen >= 0) form_.GroupList.SetIndex(chosen);
  form_.GroupName.SetText(viewer_.Group());
  showing_ = false;
}

void PlanGroups::Counted(const QString& group, int count) {
  ShowGroups();
  if (viewer_.Tool() == PlanTool::Grouping && group == viewer_.Group()) Say();
  measure_.CirclesCounted(count);
}

}  // namespace tamo
