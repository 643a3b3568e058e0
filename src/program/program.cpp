#include "program/program.h"

#include "common/paths.h"
#include "program/menus.h"
#include "program/planadapters.h"
#include "program/reportadapters.h"
#include "program/shell.h"
#include "program/takeoffadapters.h"
#include "program/work.h"
#include "schedule/scheduleform.h"
#include "workspace/form11.h"
#include "workspace/settingsform.h"
#include "workspace/tamoform.h"

namespace tamo {
struct Program::Parts {
  Parts(const Platform& given, PdfDraw& pdfDraw)
      : platform(given),
        viewer(pdfDraw),
        desk(platform.messages),
        files(platform.disk),
        kit{desk, files, shared, platform},
        shell(kit) {
    shared.Separator = PlatformSeparator();
    shared.zDir = platform.programFolder;
    form11 = std::make_unique<Form11>(kit);
    settings = std::make_unique<SettingsForm>(kit, shell);
    ost = std::make_unique<OSTForm>(kit, viewer, projectKeeper, takeoffFields);
    main = std::make_unique<TamoForm>(kit, *settings, shell, planDesk, work);
    pricing = std::make_unique<PricingForm>(kit, links, links, links);
    rooms = std::make_unique<RFSForm>(kit, planTools, links, links, takeoffExits);
    areas = std::make_unique<EstimateForm>(kit, planTools, links, links, takeoffExits);
    bottomLine = std::make_unique<BottomLine>(kit, links);
    adjustment = std::make_unique<AdjustmentForm>(kit, links);
    reports = std::make_unique<ReportsForm>(
        kit, ReportsForm::Joins{links, projectRecord, reportsShell, links, wholeQuantities});
    docs = std::make_unique<DocsForm>(kit, work);
    schedule = std::make_unique<ScheduleForm>(kit, *ost);
    Join();
  }

  void Join() {
    shell.Join(*main, *settings, *ost);
    planDesk.Join(*ost);
    projectKeeper.Join(*main);
    projectRecord.Join(*main);
    reportsShell.Join(shell, *reports, *ost);
    wholeQuantities.Join(*settings);
    planTools.Join(*ost);
    takeoffExits.Join(shell, *main, *ost);
    takeoffFields.Join(*rooms, *areas);
    links.Join(*pricing, *reports, *settings, *main, *ost);
    work.Join({*pricing, *rooms, *areas, *bottomLine, *adjustment, *reports, *docs, shell});
    menus = std::make_unique<Menus>(kit, shell, *main, *settings, *ost, *reports, work);
  }

  const Platform platform;
  PdfDraw& viewer;
  Desk desk;
  Files files;
  SharedFields shared;
  const Kit kit;
  Shell shell;
  PricingLinks links;
  WorkingForms work;
  PlanDeskOnOst planDesk;
  ProjectKeeperOnTamo projectKeeper;
  PlanToolsOnOst planTools;
  TakeoffExitsOnForms takeoffExits;
  TakeoffFieldsOnForms takeoffFields;
  ProjectRecordOnTamo projectRecord;
  ReportsShellOnForms reportsShell;
  WholeQuantitiesInSettings wholeQuantities;
  std::unique_ptr<Form11> form11;
  std::unique_ptr<SettingsForm> settings;
  std::unique_ptr<OSTForm> ost;
  std::unique_ptr<TamoForm> main;
  std::unique_ptr<PricingForm> pricing;
  std::unique_ptr<RFSForm> rooms;
  std::unique_ptr<EstimateForm> areas;
  std::unique_ptr<BottomLine> bottomLine;
  std::unique_ptr<AdjustmentForm> adjustment;
  std::unique_ptr<ReportsForm> reports;
  std::unique_ptr<DocsForm> docs;
  std::unique_ptr<ScheduleForm> schedule;
  std::unique_ptr<Menus> menus;
};

Program::Program(const Platform& platform, PdfDraw& viewer)
    : parts_(std::make_unique<Parts>(platform, viewer)) {
  parts_->shell.onEnded = [this] {
    if (onEnded) onEnded();
  };
  parts_->shell.beforeEnd = [this] { parts_->bottomLine->SaveUnsaved(); };
}

Program::~Program() = default;

void Program::Start() {
  parts_->desk.Dispatch([this] {
    parts_->ost->Load();
    parts_->main->Init();
  });
}

bool Program::Running() const {
  return parts_->shell.Running();
}
Desk& Program::GetDesk() {
  return parts_->desk;
}
Files& Program::GetFiles() {
  return parts_->files;
}
SharedFields& Program::Shared() {
  return parts_->shared;
}
PdfDraw& Program::Viewer() {
  return parts_->viewer;
}
Form* Program::FindForm(const QString& name) {
  return parts_->desk.Find(name);
}

const QString* Program::FindText(const QString& form, const QString& name) {
  const Form* found = parts_->desk.Find(form);
  return found == nullptr ? nullptr : found->FindText(name);
}

void Program::TrySavesAgain() {
  parts_->desk.Dispatch([this] { parts_->files.TryAgain(); });
}

bool Program::MayEnd() {
  bool may = false;
  GetDesk().Dispatch([&] { may = parts_->shell.MayEnd(); });
  return may;
}

}  // namespace tamo
