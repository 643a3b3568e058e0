#include "program/program.h"

#include "common/paths.h"
#include "program/menus.h"
#include "program/planadapters.h"
#include "program/reportadapters.h"
#include "program/shell.h"
#include "workspace/form11.h"
#include "workspace/settingsform.h"
#include "workspace/tamoform.h"

namespace tamo {
namespace {

class Work : public WorkDesk,
             public Desks,
             public TakeoffFields,
             public MarkupSource,
             public BottomLineFigure {
 public:
  ReportsForm* reports = nullptr;
  void InitPricing() override {}
  void RefreshPricingList() override {}
  void PrintReport() override { reports->Refresh(); }
  void ClearReports() override {
    reports->Reporter.Clear();
    reports->Hide();
  }
  void ForgetProject() override { reports->ForgetProject(); }
  void ToggleUnitPricing(Form*) override {}
  void TogglePricing(Form*) override {}
  void LoadMarkups() override {}
  void EnterSchedule(Form*) override {}
  void TakeOffSchedule(Form*) override {}
  void ShowFreeItems(Form*) override {}
  void ShowBottomLine(Form*) override {}
  void ShowAdjustment(Form*) override {}
  void ToggleDocs(Form*) override {}
  bool FormVisible(Field) const override { return false; }
  void SetText(Field, const QString&) override {}
  void FocusOn(Field) override {}
  MarkupTexts Texts() const override { return {}; }
  void SetTotalBL(const QString&) override {}
};

}  // namespace

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
    ost = std::make_unique<OSTForm>(kit, viewer, projectKeeper, work);
    main = std::make_unique<TamoForm>(kit, *settings, shell, planDesk, work);
    reports = std::make_unique<ReportsForm>(
        kit, ReportsForm::Joins{work, projectRecord, reportsShell, work, wholeQuantities});
    Join();
  }

  void Join() {
    shell.Join(*main, *settings, *ost);
    planDesk.Join(*ost);
    projectKeeper.Join(*main);
    projectRecord.Join(*main);
    reportsShell.Join(shell, *reports, *ost);
    wholeQuantities.Join(*settings);
    work.reports = reports.get();
    menus = std::make_unique<Menus>(kit, shell, *main, *settings, *ost, *reports, work);
  }

  const Platform platform;
  PdfDraw& viewer;
  Desk desk;
  Files files;
  SharedFields shared;
  const Kit kit;
  Shell shell;
  Work work;
  PlanDeskOnOst planDesk;
  ProjectKeeperOnTamo projectKeeper;
  ProjectRecordOnTamo projectRecord;
  ReportsShellOnForms reportsShell;
  WholeQuantitiesInSettings wholeQuantities;
  std::unique_ptr<Form11> form11;
  std::unique_ptr<SettingsForm> settings;
  std::unique_ptr<OSTForm> ost;
  std::unique_ptr<TamoForm> main;
  std::unique_ptr<ReportsForm> reports;
  std::unique_ptr<Menus> menus;
};

Program::Program(const Platform& platform, PdfDraw& viewer)
    : parts_(std::make_unique<Parts>(platform, viewer)) {
  parts_->shell.onEnded = [this] {
    if (onEnded) onEnded();
  };
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
  return parts_->shell.MayEnd();
}

}  // namespace tamo
