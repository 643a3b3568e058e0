// The chain of the free takeoff: Area, eDescription, Hite for surfaces, eLength.

#include "common/chain.h"
#include "common/columns.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "records/arealine.h"
#include "records/storable.h"
#include "takeoff/estimateform.h"
#include "takeoff/nextname.h"
#include "takeoff/unitcodes.h"

namespace tamo {
namespace {

// The lines of an area are read back value by value, and leading blanks of a value are skipped: a
// line whose system begins with a blank, or has no name, would come back with its quantity lost.
void RequireLineName(const QString& system) {
  if (!system.isEmpty() && system[0] != QLatin1Char(' ')) return;
  throw RunTimeFailure(
      kSubscript,
      system.trimmed().isEmpty()
          ? QStringLiteral(
                "No system is named, so the line would have no name. Nothing was stored; "
                "enter a system first.")
          : QStringLiteral(
                "\"%1\" begins with a blank, so the line could not be read back. Nothing "
                "was stored; enter the system without the blank.")
                .arg(system));
}

}  // namespace

void EstimateForm::BindChain() {
  OnEnter(Area, Keys::FileName, [this] { TakeArea(); });
  Area.onGotFocus = [this] { AreaGotFocus(); };
  Area.onLostFocus = [this] {
    AreasList.Hide();
    FollowAreaName();
  };
  Area.onDoubleClick = [this] { Toggle(AreasList); };

  OnEnter(eDescription, [this] { TakeDescription(); });
  OnFocusSelectAll(eDescription, [this] { LoadDescriptionsIfEmpty(); });
  eDescription.onLostFocus = [this] { DescriptionsList.Hide(); };
  eDescription.onDoubleClick = [this] { Toggle(DescriptionsList); };

  OnEnter(Hite, Keys::Number, [this] { TakeHeight(); });
  OnFocusSelectAll(Hite, [this] { HiteGotFocus(); });
  OnEnter(eLength, Keys::Number, [this] { TakeLength(); });
  OnFocusSelectAll(eLength, [this] { LengthGotFocus(); });
  eLength.onDoubleClick = [this] { Toggle(Lengths); };
}

void EstimateForm::TakeArea() {
  AreasList.Hide();
  if (Area.Empty()) {
    Hide();
  } else {
    EnterArea();
  }
  LoadArea();
  GetDesk().Focus(eDescription);
}

void EstimateForm::EnterArea() {
  RequireName(QStringLiteral("area"), Area.Text());
  if (AreasList.Find(Area.Text()) >= 0) return;
  steps_.Begin(QStringLiteral("the new area \"%1\"").arg(Area.Text()), *this);
  AreasList.Add(Area.Text());
  SaveAreas();
}

// Another name than that of the lines below, left without Enter: its own lines come up. The focus
// goes where the estimator sent it, or back to a name that is refused. False when it was refused.
bool EstimateForm::FollowAreaName() {
  if (!lines_.OfOpenProject() || NameStands()) return true;
  bool loaded = false;
  now_.following = true;
  GetDesk().Dispatch([&] {
    EnterArea();
    LoadArea();
    loaded = true;
  });
  now_.following = false;
  if (!loaded) GetDesk().Focus(Area);
  return loaded;
}

void EstimateForm::AreaGotFocus() {
  AreasList.SetTop(areasTop_);
  const QString& waiting = kit_.shared.IAmHere;
  const bool inWork = !eDescription.Empty() && NameStands();
  if (waiting == QLatin1String("EL") && inWork) {
    GetDesk().Focus(eLength);
    return;
  }
  // A height that waits for its measure takes the focus back; the list of areas comes up all the
  // same, so that another area can be chosen. A test holds it.
  if (waiting == QLatin1String("EH") && inWork) GetDesk().Focus(Hite);
  Area.SelectAll();
  LoadAreas();
  AreasList.Show();
}

void EstimateForm::TakeDescription() {
  DescriptionsList.Hide();
  if (eDescription.Empty()) {
    LeaveDescription();
    return;
  }
  RequireLineName(eDescription.Text());
  if (DescriptionsList.Find(eDescription.Text()) < 0) {
    UnknownSystem();
  } else {
    TakeSystem();
  }
}

void EstimateForm::LeaveDescription() {
  if (autoRoom_.On()) {
    NextArea();
    return;
  }
  for (TextField* field : {&eDescription, &Units, &eLength, &Hite, &Area}) field->Clear();
  GetDesk().Focus(Area);
}

void EstimateForm::NextArea() {
  const QString next = NextName(Area.Text());
  RequireName(QStringLiteral("area"), next);
  Area.SetText(next);
  EnterArea();
  LoadArea();
  GetDesk().Focus(eDescription);
}

// The name stays in the list although there is no such system yet: a second Enter takes it (held by
// a test).
void EstimateForm::UnknownSystem() {
  const QString name = eDescription.Text();
  kit_.desk.GetMessages().Tell(name + QStringLiteral(" Not Found"));
  // No height or length that is measured meanwhile meets the line before.
  kit_.shared.IAmHere.clear();
  now_.unknown = true;
  pricing_.ShowWithName(name);
  DescriptionsList.Insert(0, name);
}

void EstimateForm::TakeSystem() {
  RequireName(QStringLiteral("area"), Area.Text());
  const int at = FindLine(AreaList.Rows(), eDescription.Text());
  if (at == AreaList.Count()) {
    LoadSystem();
    AreaList.Add(AreaLine::Of(eDescription.Text(), QStringLiteral("0"), Units.Text()).Text());
    AreaList.SetIndex(AreaList.Count() - 1);
  } else if (!AreaList.Row(at).isEmpty()) {
    LoadSystem();
    Units.SetText(workUnit_);
    AreaList.SetIndex(at);
    SaveArea();
    GetDesk().Focus(Hite);
  }
  // An empty slot is not selected: an entry goes to the line that is (held by a test).
  LoadSystem();
  Units.SetText(workUnit_);
  AskForLength();
}

void EstimateForm::AskForLength() {
  UpdateStatus();
  if (!IsLinearOrCount(Units.Text())) return;
  const bool count = IsCount(Units.Text());
  LengthLabel.SetCaption(count ? QStringLiteral("How many:") : QStringLiteral("Length:"));
  plan_.SetToolMode(count ? 2 : 1);
  GetDesk().Focus(eLength);
}

void EstimateForm::TakeHeight() {
  measured.Entered(Hite);
  if (GroupedValue(Hite.Text()) != 0) {
    plan_.SetToolMode(0);
    plan_.ClearDistance();
    GetDesk().Focus(eLength);
    return;
  }
  for (TextField* field : {&eLength, &eDescription, &Units}) field->Clear();
  Lengths.Clear();
  GetDesk().Focus(eDescription);
}

void EstimateForm::HiteGotFocus() {
  kit_.shared.IAmHere = QStringLiteral("EH");
  areaIndex_ = AreasList.Index();
  AreasList.SetTop(areasTop_);
  plan_.ReleaseMode();
  plan_.ClearDistance();
}

void EstimateForm::TakeLength() {
  if (GroupedValue(eLength.Text()) == 0) {
    EndLineEntry();
    return;
  }
  if (AreaList.Index() < 0) {
    throw RunTimeFailure(
        kSubscript,
        QStringLiteral("No line of the area is selected, so the length has no place. Nothing was "
                       "stored; enter a system or select a line in the list first."));
  }
  if (AreaList.Selected().isEmpty()) RequireLineName(eDescription.Text());
  PrepareSave();
  AddEntry();
}

void EstimateForm::LengthGotFocus() {
  kit_.shared.IAmHere = QStringLiteral("EL");
  Lengths.Hide();
  if (areaIndex_ < AreasList.Count()) AreasList.SetIndex(areaIndex_);
  AreasList.SetTop(areasTop_);
}

// The running total is rounded at each entry, of lengths and counts too.
void EstimateForm::AddEntry() {
  const AreaLine line(AreaList.Selected());
  const double entered = GroupedValue(eLength.Text());
  const bool linear = IsLinearOrCount(TrimmedBlanks(Units.Text()));
  const double total =
      Rounded(linear ? line.LinearQuantity() + entered
                     : line.SurfaceQuantity() + GroupedValue(Hite.Text()) * entered);
  BeginQuantity(total);
  Units.SetText(TrimmedBlanks(Units.Text()));
  StoreQuantity(total);
  if (linear) {
    plan_.SetToolMode(0);
    plan_.ClearDistance();
    Lengths.Add(GrownLeft(eLength.Text(), 10));
  } else {
    measured.Entered(Hite);
    plan_.SetToolMode(0);
    Lengths.Add(Hite.Text() + QStringLiteral(" X ") + eLength.Text());
  }
  eLength.Clear();
  SaveArea();
  plan_.SaveIt();
  GetDesk().Focus(eLength);
}

// The line keeps the name that stands in it; an empty slot takes the system in work.
void EstimateForm::StoreQuantity(double total) {
  const AreaLine line(AreaList.Selected());
  const QString system = line.Text().isEmpty() ? eDescription.Text() : line.System();
  AreaList.SetRow(AreaList.Index(), AreaLine::Of(system, NumberText(total), Units.Text()).Text());
}

void EstimateForm::EndLineEntry() {
  const bool linear = IsLinearOrCount(Units.Text());
  eLength.Clear();
  Lengths.Hide();
  Hite.Clear();
  if (!linear) {
    Hite.Show();
    plan_.SetToolMode(0);
    GetDesk().Focus(Hite);
    return;
  }
  eDescription.Clear();
  Lengths.Clear();
  plan_.SetToolMode(0);
  GetDesk().Focus(eDescription);
}

}  // namespace tamo
