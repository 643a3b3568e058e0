#include "program/menus.h"

namespace tamo {

Menus::Menus(const Kit& kit, Shell& shell, TamoForm& main, SettingsForm& settings, OSTForm& ost,
             ReportsForm& reports, Desks& desks)
    : kit_(kit),
      shell_(shell),
      main_(main),
      settings_(settings),
      ost_(ost),
      reports_(reports),
      desks_(desks) {
  JoinProject();
  JoinWork();
  JoinReports();
  JoinShell();
}

bool Menus::Passes(Guard guard) {
  switch (guard) {
    case Guard::None:
      return true;
    case Guard::Lock:
      return main_.NeedUnlocked();
    case Guard::Project:
      return main_.NeedProject();
    case Guard::LockThenProject:
      return main_.NeedUnlocked() && main_.NeedProject();
    case Guard::ProjectThenLock:
      return main_.NeedProject() && main_.NeedUnlocked();
  }
  return false;
}

void Menus::OnMain(MenuEntry& entry, Guard guard, std::function<void()> action) {
  entry.onClick = [this, guard, action = std::move(action)] {
    if (Passes(guard)) action();
  };
}

void Menus::OnOst(const char* name, Guard guard, std::function<void()> action) {
  OnMain(*ost_.FindMenu(QLatin1String(name)), guard, std::move(action));
}

void Menus::OnBoth(MenuEntry& entry, const char* ostName, Guard guard,
                   const std::function<void()>& action) {
  OnMain(entry, guard, action);
  OnOst(ostName, guard, action);
}

void Menus::JoinProject() {
  OnMain(main_.OpenProjectEntry, Guard::None, [this] {
    kit_.shared.OPN = QStringLiteral("2");
    main_.OpenProject();
  });
  OnMain(main_.NewProjectEntry, Guard::None, [this] { main_.NewProject(); });
  OnMain(main_.ProjectInformationEntry, Guard::Project, [this] { main_.ProjectInformation(); });
  OnMain(main_.LockProjectEntry, Guard::None, [this] { main_.LockProject(); });
  OnMain(main_.CopyProjectEntry, Guard::Project, [this] { main_.CopyProject(); });
  OnOst("OpenProject", Guard::None, [this] { OpenFromOst(); });
  OnOst("NewProject", Guard::None, [this] { NewFromOst(); });
  OnOst("ProjectInformation", Guard::Project, [this] { InformationFromOst(); });
  OnOst("CopyProject", Guard::Project, [this] { CopyFromOst(); });
  OnBoth(main_.ClearProjectEntry, "ClearProject", Guard::None, [this] { main_.ClearProject(); });
  OnBoth(main_.PasteProjectEntry, "PasteProject", Guard::None, [this] { main_.PasteProject(); });
  OnBoth(main_.DeleteProjectEntry, "DeleteProject", Guard::None, [this] { main_.DeleteProject(); });
}

void Menus::JoinWork() {
  OnMain(main_.UnitsPricing, Guard::Lock, [this] { desks_.ToggleUnitPricing(&ost_); });
  OnBoth(main_.Pricing2, "Pricing2", Guard::Lock, [this] { desks_.TogglePricing(&ost_); });
  OnBoth(main_.EnterRoomFinishSchedule, "EnterRFS", Guard::LockThenProject,
         [this] { desks_.EnterSchedule(&ost_); });
  OnBoth(main_.TakeOffRoomFinishSchedule, "TakeoffRFS", Guard::LockThenProject,
         [this] { desks_.TakeOffSchedule(&ost_); });
  OnBoth(main_.NonFinishScheduleItems, "NRFS", Guard::LockThenProject,
         [this] { desks_.ShowFreeItems(&ost_); });
  OnBoth(main_.BottomLineItems, "BottomLine1", Guard::ProjectThenLock,
         [this] { desks_.ShowBottomLine(&ost_); });
  OnBoth(main_.PriceAdjustment, "PriceAdjustment", Guard::ProjectThenLock,
         [this] { desks_.ShowAdjustment(&ost_); });
}

void Menus::JoinReports() {
  OnBoth(main_.ProjectNFO, "ProjectNFO", Guard::Project, [this] { ProjectInformationReport(); });
  OnBoth(main_.Quantities, "Quantities", Guard::Project,
         [this] { ShowReport([this] { reports_.Quantities(); }); });
  OnBoth(main_.RecapSheet, "Recap", Guard::Project, [this] { Recap(QStringLiteral("False")); });
  OnBoth(main_.DetailedRecap, "DetailedRecap", Guard::Project,
         [this] { Recap(QStringLiteral("True")); });
  OnBoth(main_.BreakDown, "BreakDown", Guard::None, [this] {
    reports_.menu.MakeProjectFile.Hide();
    reports_.BreakDown();
  });
  OnBoth(main_.BillOfMaterial, "BillofMaterial", Guard::Project,
         [this] { ShowReport([this] { reports_.BillofMaterial(); }); });
  OnBoth(main_.oCopy, "oCopy", Guard::Project, [this] { OfficeCopy(); });
  OnBoth(main_.fCopy, "fCopy", Guard::Project, [this] { FieldCopy(); });
  // These two only ask for a project.
  OnMain(main_.BillOfLabor, Guard::Project, [] {});
  OnMain(main_.Proposal, Guard::Project, [] {});
}

void Menus::JoinShell() {
  OnMain(main_.OST1, Guard::None, [this] { ShowOst(); });
  OnBoth(main_.Settings1, "Settings1", Guard::None,
         [this] { settings_.Toggle(&shell_.ShellForm()); });
  OnBoth(main_.Docs1, "Documentation", Guard::None,
         [this] { desks_.ToggleDocs(&shell_.ShellForm()); });
  OnMain(main_.Exit, Guard::None, [this] { shell_.ExitMain(); });
  OnOst("Exit", Guard::None, [this] { shell_.ExitOst(); });
}

void Menus::ProjectInformationReport() {
  reports_.menu.MakeProjectFile.Hide();
  if (main_.JobNFOFrame.Shown()) main_.HidePanel();
  reports_.ProjectInformation();
}

void Menus::ShowReport(const std::function<void()>& report) {
  reports_.menu.MakeProjectFile.Hide();
  reports_.Show(&ost_);
  report();
}

void Menus::Recap(const QString& detailed) {
  ShowReport([&] {
    kit_.shared.DTText = detailed;
    reports_.MinimalRecapSheet();
  });
}

void Menus::OfficeCopy() {
  reports_.menu.MakeProjectFile.Show();
  // The markups may have put it out of reach; with an Office Copy it can be chosen.
  reports_.menu.MakeProjectFile.SetEnabled(true);
  desks_.LoadMarkups();
  reports_.Show(&ost_);
  reports_.Flag = QStringLiteral("True");
  reports_.AreaRoomWP();
}

void Menus::FieldCopy() {
  ShowReport([this] {
    reports_.Flag = QStringLiteral("False");
    reports_.AreaRoomWP();
  });
}

// From OST the list stands on the main form, and a pick comes back to OST.
void Menus::OpenFromOst() {
  const bool away = main_.Visible() && main_.JobsList.Shown();
  kit_.shared.OPN = QStringLiteral("7");
  shell_.ShowMainForm();
  main_.OpenProject();
  if (away) shell_.HideMainForm();
}

void Menus::NewFromOst() {
  shell_.ShowMainForm();
  main_.NewProject();
  if (!main_.JobNFOFrame.Shown()) shell_.HideMainForm();
}

void Menus::InformationFromOst() {
  shell_.ShowMainForm();
  main_.ProjectInformation();
  if (!main_.JobNFOFrame.Shown()) shell_.HideMainForm();
}

void Menus::CopyFromOst() {
  shell_.HideMainForm();
  main_.CopyProject();
}

void Menus::ShowOst() {
  ost_.PlanNotes.Hide();
  ost_.Show();
}

}  // namespace tamo
