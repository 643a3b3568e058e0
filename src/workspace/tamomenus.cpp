#include "workspace/tamoform.h"

// The menu bar of the main form, in its order. A member whose name an operation already has ends in
// "Entry"; the entry's own name is the plain one.

namespace tamo {

#define TAMO_ENTRY(member, name, caption, parent) \
  member(*this, QStringLiteral(name), QStringLiteral(caption), parent)

TamoForm::TamoForm(const Kit& kit, SettingsForm& settings, ModeShell& shell, PlanDesk& plan,
                   WorkDesk& work)
    : Form(kit.desk, QStringLiteral("Tamo")),
      TAMO_ENTRY(Project, "Project", "&Project", nullptr),
      TAMO_ENTRY(OpenProjectEntry, "OpenProject", "&Open Project", &Project),
      TAMO_ENTRY(ClearProjectEntry, "ClearProject", "&Clear Project", &Project),
      TAMO_ENTRY(NewProjectEntry, "NewProject", "C&reate Project", &Project),
      TAMO_ENTRY(ProjectInformationEntry, "ProjectInformation", "&Project Information", &Project),
      TAMO_ENTRY(LockProjectEntry, "LockProject", "&Lock/Unlock Project", &Project),
      TAMO_ENTRY(CopyProjectEntry, "CopyProject", "&Copy Project", &Project),
      TAMO_ENTRY(PasteProjectEntry, "PasteProject", "P&aste Project", &Project),
      TAMO_ENTRY(DeleteProjectEntry, "DeleteProject", "&Delete Project", &Project),
      TAMO_ENTRY(Pricing2, "Pricing2", "Pricing", nullptr),
      TAMO_ENTRY(UnitsPricing, "UnitsPricing", "&Unit Pricing", &Pricing2),
      TAMO_ENTRY(Markups, "Markups", "&Markups", &Pricing2),
      TAMO_ENTRY(Estimate, "Estimate", "&Estimate", nullptr),
      TAMO_ENTRY(RoomFinishSchedule, "RoomFinishSchedule", "&Room Finish Schedule", &Estimate),
      TAMO_ENTRY(EnterRoomFinishSchedule, "EnterRoomFinishSchedule", "&Enter Room Finish Schedule",
                 &RoomFinishSchedule),
      TAMO_ENTRY(TakeOffRoomFinishSchedule, "TakeOffRoomFinishSchedule",
                 "&TakeOff Room Finish Schedule", &RoomFinishSchedule),
      TAMO_ENTRY(NonFinishScheduleItems, "NonFinishScheduleItems", "&Non Finish Schedule Items",
                 &Estimate),
      TAMO_ENTRY(BottomLineItems, "BottomLineItems", "&Bottom Line Items", &Estimate),
      TAMO_ENTRY(PriceAdjustment, "PriceAdjustment", "&Price Adjustment", &Estimate),
      TAMO_ENTRY(Reports1, "Reports1", "Repor&ts", nullptr),
      TAMO_ENTRY(ProjectNFO, "ProjectNFO", "Pr&oject Information", &Reports1),
      TAMO_ENTRY(Quantities, "Quantities", "&Quantities", &Reports1),
      TAMO_ENTRY(Recap, "Recap", "&Recap", &Reports1),
      TAMO_ENTRY(RecapSheet, "RecapSheet", "&Recap Overview", &Recap),
      TAMO_ENTRY(DetailedRecap, "DetailedRecap", "&Detailed Recap", &Recap),
      TAMO_ENTRY(BreakDown, "BreakDown", "&BreakDown", &Reports1),
      TAMO_ENTRY(BillOfLabor, "BillOfLabor", "Bill of &Labor", &Reports1),
      TAMO_ENTRY(BillOfMaterial, "BillOfMaterial", "Bill of &Material", &Reports1),
      TAMO_ENTRY(ProjectManager, "ProjectManager", "&Project Manager", &Reports1),
      TAMO_ENTRY(oCopy, "oCopy", "&Office Copy", &ProjectManager),
      TAMO_ENTRY(fCopy, "fCopy", "&Field Copy", &ProjectManager),
      TAMO_ENTRY(Proposal, "Proposal", "Propo&sal", &Reports1),
      TAMO_ENTRY(Drawings, "Drawings", "&Drawings", nullptr),
      TAMO_ENTRY(LoadDRawings, "LoadDRawings", "&Load Drawings", &Drawings),
      TAMO_ENTRY(ViewDrawings, "ViewDrawings", "&View Drawings", &Drawings),
      TAMO_ENTRY(OST1, "OST1", "&DSW", nullptr),
      TAMO_ENTRY(Settings1, "Settings1", "&Settings", nullptr),
      TAMO_ENTRY(Docs1, "Docs1", "D&ocumentation", nullptr),
      TAMO_ENTRY(Exit, "Exit", "E&xit", nullptr),
      JobNFOFrame(*this, QStringLiteral("JobNFOFrame")),
      JobName(*this, QStringLiteral("JobName")),
      BidDate(*this, QStringLiteral("BidDate")),
      Addenda(*this, QStringLiteral("Addenda")),
      Phase(*this, QStringLiteral("Phase")),
      BidItems(*this, QStringLiteral("BidItems")),
      Inclusions(*this, QStringLiteral("Inclusions")),
      Exclusions(*this, QStringLiteral("Exclusions")),
      Architect(*this, QStringLiteral("Architect")),
      Notes(*this, QStringLiteral("Notes")),
      Command1(*this, QStringLiteral("Command1"), QStringLiteral("Exit Project Information")),
      JobsList(*this, QStringLiteral("JobsList")),
      kit_(kit),
      settings_(settings),
      shell_(shell),
      plan_(plan),
      work_(work) {
  AddText(QStringLiteral("JobID"), &kit_.shared.JobID);
  AddText(QStringLiteral("Locked"), &kit_.shared.Locked);
  AddText(QStringLiteral("DriveBy"), &kit_.shared.DriveBy);
  AddText(QStringLiteral("TopOfReport"), &kit_.shared.TopOfReport);
  AddText(QStringLiteral("CopyJobID"), &kit_.shared.CopyJobID);
  SetCaption(QStringLiteral("Estimating Beta 1.4"));
  SetUpChain();
}

#undef TAMO_ENTRY

}  // namespace tamo
