// What taking back shows of an area, and what it calls an entry.

#include "common/columns.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "records/areafile.h"
#include "records/arealine.h"
#include "records/sheetnames.h"
#include "takeoff/estimateform.h"
#include "takeoff/listchange.h"
#include "takeoff/unitcodes.h"

namespace tamo {

void EstimateForm::BeginQuantity(double total) {
  const bool surface = !IsLinearOrCount(Units.Text());
  const AreaLine line(AreaList.Selected());
  const QString system = line.Text().isEmpty() ? eDescription.Text() : line.System();
  const QString entry =
      surface ? Hite.Text() + QStringLiteral(" X ") + eLength.Text() : eLength.Text();
  const EnteredLine into{true,
                         Area.Text(),
                         system,
                         TrimmedBlanks(Units.Text()),
                         entry,
                         surface ? GroupedValue(Hite.Text()) : 1,
                         surface ? line.SurfaceQuantity() : line.LinearQuantity(),
                         total};
  steps_.Begin(entry + QStringLiteral(" of ") + system + InSheet(Area.Text()), *this);
  if (surface) {
    steps_.Measured({{"EL", eLength.Text()}, {"EH", Hite.Text()}}, into);
  } else {
    steps_.Measured({{"EL", eLength.Text()}}, into);
  }
}

QString EstimateForm::TargetOf(const TextField&) const {
  if (Area.Empty() || !lines_.AreOf(Area.Text()) || AreaList.Index() < 0) return {};
  const AreaLine line(AreaList.Selected());
  const QString system = line.Text().isEmpty() ? eDescription.Text() : line.System();
  return WithKind(QStringLiteral("Area"), Area.Text()) + QStringLiteral(", ") + system;
}

SheetState EstimateForm::State() const {
  const bool inWork = !Area.Empty() && lines_.AreOf(Area.Text());
  return {inWork ? ProjectFolder(kit_.shared).AreaFile(Area.Text()) : QString(),
          AreaList.SharedRows(),
          AreaList.Index(),
          {Hite.Text()},
          Lengths.Rows()};
}

void EstimateForm::ShowState(const SheetState& state) {
  ChangeRows(AreaList, state.lines.List());
  now_.quiet = true;
  if (state.line != SheetState::kAsItIs) AreaList.SetIndex(state.line);
  now_.quiet = false;
  Hite.SetText(state.texts.value(0));
  Lengths.SetRows(state.entries);
  UpdateStatus();
}

void EstimateForm::FollowFiles(const QStringList& paths) {
  if (!lines_.OfOpenProject()) return;
  const ProjectFolder project(kit_.shared);
  const bool inWork = !Area.Empty() && NameStands();
  QStringList rows;
  if (paths.contains(project.AreaNames()) &&
      ReadAreaNames(kit_.files, kit_.shared, rows) == kNoError) {
    const bool listed = AreasList.Find(Area.Text()) >= 0;
    const QStringList before = AreasList.Rows();
    AreasList.Refill(rows);
    areaIndex_ = AreasList.RowAfter(before, areaIndex_);
    if (inWork && listed && !rows.contains(Area.Text())) {
      LeaveArea();
      return;
    }
  }
  if (inWork && !now_.unread && paths.contains(project.AreaFile(Area.Text()))) {
    const int error = ReadAreaDelimited(kit_.files, kit_.shared, Area.Text(), rows);
    if (error == kNoError || IsMissing(error)) ChangeRows(AreaList, rows);
  }
  UpdateStatus();
}

void EstimateForm::LeaveArea() {
  Area.Clear();
  ForgetLines();
  areaIndex_ = -1;
  kit_.shared.IAmHere.clear();  // no length waits in the area any more
  if (GetDesk().Active() == this) GetDesk().Focus(Area);
}

}  // namespace tamo
