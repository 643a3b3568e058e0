// The lists of the free takeoff: areas, lines, systems, and what the menus do to them.

#include "common/chain.h"
#include "records/arealine.h"
#include "takeoff/estimateform.h"
#include "takeoff/unitcodes.h"

namespace tamo {

void EstimateForm::BindLists() {
  AreasList.onSelect = [this] { AreaSelected(); };
  AreasList.onUserScroll = [this] { areasTop_ = AreasList.Top(); };
  AreaList.onSelect = [this] { LineSelected(); };
  DescriptionsList.onSelect = [this] { DescriptionSelected(); };
}

void EstimateForm::AreaSelected() {
  if (AreasList.Index() < 0) return;
  areasTop_ = AreasList.Top();
  areaIndex_ = AreasList.Index();
  Area.SetText(AreasList.Selected());
  LoadArea();
  AreasList.Hide();
  GetDesk().Focus(eDescription);
}

void EstimateForm::LineSelected() {
  UpdateStatus();
  if (now_.quiet) return;
  const AreaLine line(AreaList.Selected());
  if (line.Text().isEmpty() || !NameStands()) return;
  eDescription.SetText(line.System());
  Units.SetText(line.UnitsStopgap());
  AreasList.Hide();
  LoadSystem();
  const bool surface = !IsLinearOrCount(Units.Text());
  const bool count = IsCount(Units.Text());
  plan_.SetToolMode(count ? 2 : 1);
  LengthLabel.SetCaption(surface ? QStringLiteral("Length:")
                         : count ? QStringLiteral("How Many")
                                 : QStringLiteral("Length"));
  if (!now_.following) GetDesk().Focus(surface ? Hite : eLength);
}

// The system goes to the top of the list; Enter in the field goes on with it.
void EstimateForm::DescriptionSelected() {
  if (DescriptionsList.Index() < 0) return;
  PickToTop(DescriptionsList, eDescription);
  SaveDescriptions();
  GetDesk().Focus(eDescription);
}

// The area that follows in the list goes, too (held by a test); the files of both stay.
void EstimateForm::DeleteArea() {
  if (Area.Empty()) return;
  const int at = static_cast<int>(AreasList.Rows().lastIndexOf(Area.Text()));
  if (at < 0) return;
  steps_.Begin(QStringLiteral("the deletion of the area \"%1\"").arg(Area.Text()), *this);
  QString gone = QStringLiteral("\"%1\" is").arg(AreasList.Row(at));
  AreasList.Remove(at);
  if (at < AreasList.Count()) {
    gone = QStringLiteral("\"%1\" and \"%2\" are").arg(Area.Text(), AreasList.Row(at));
    AreasList.Remove(at);
  }
  Area.Clear();
  ForgetLines();
  areaIndex_ = -1;
  SaveAreas();
  AreasList.Show();
  kit_.shared.IAmHere.clear();  // no length waits in the area any more
  GetDesk().Focus(Area);
  StatusText.SetCaption(
      gone + QStringLiteral(" off the list. Typing a name again brings it back with its lines."));
}

bool EstimateForm::LineIsSelected() {
  if (!FollowAreaName() || AreaList.Index() < 0) return false;
  PrepareSave();
  return true;
}

void EstimateForm::DeleteLine() {
  if (!LineIsSelected()) return;
  const QString system = AreaLine(AreaList.Selected()).System();
  steps_.Begin(system.isEmpty()
                   ? QStringLiteral("the deletion of an empty line") + InSheet(Area.Text())
                   : QStringLiteral("the deletion of ") + system + InSheet(Area.Text()),
               *this);
  AreaList.Remove(AreaList.Index());
  SaveArea();
  eDescription.Clear();
  Lengths.Clear();
  GetDesk().Focus(eDescription);
  UpdateStatus();
}

// The empty slot is stored, unlike that of a room.
void EstimateForm::InsertLine() {
  if (!LineIsSelected()) return;
  steps_.Begin(QStringLiteral("the empty line") + InSheet(Area.Text()), *this);
  AreaList.Insert(AreaList.Index(), QString());
  SaveArea();
  UpdateStatus();
}

void EstimateForm::CopyLines() {
  if (!FollowAreaName()) return;
  CopyAreaList.SetRows(AreaList.Rows());
  copyHite_ = Hite.Text();
}

void EstimateForm::PasteLines() {
  if (CopyAreaList.Empty() || !FollowAreaName()) return;
  lines_.RequireStorable(Area.Text());
  steps_.Begin(QStringLiteral("the lines pasted") + InSheet(Area.Text()), *this);
  AreaList.Clear();
  AreaList.AddAll(CopyAreaList.Rows());
  Hite.SetText(copyHite_);
  SaveArea();
  AreaList.SetIndex(AreaList.Count() - 1);
  GetDesk().Focus(Hite);
}

}  // namespace tamo
