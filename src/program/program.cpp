#include "program/program.h"

#include "common/paths.h"
#include "program/shell.h"
#include "workspace/form11.h"
#include "workspace/settingsform.h"
#include "workspace/tamoform.h"

namespace tamo {
namespace {

class PlanDeskOnOst : public PlanDesk {
 public:
  Record Fields() const override { return record_; }
  void SetPlanLocation(const QString& path) override { record_.planLocation = path; }
  void SetPageText(const QString& text) override { record_.pageText = text; }
  void SetZoomLevel(const QString& text) override { record_.zoomLevel = text; }
  void SetScale(const QString& scale1, const QString& scale2, const QString& text5) override {
    record_.scale1 = scale1;
    record_.scale2 = scale2;
    record_.text5 = text5;
  }
  void SetProjectName(const QString&) override {}
  int ViewValue(int) const override { return 0; }
  void SetViewValue(int, int) override {}
  void TurnToPage(int) override {}
  void SetZoomByLevel(const QString&) override {}
  void LoadFN() override {}
  void LoadPDF() override {}
  void OpenBlank() override {}
  void LoadPlanNotes() override {}
  void HideBrowser() override {}

 private:
  Record record_;
};

class WorkDeskOnForms : public WorkDesk {
 public:
  void InitPricing() override {}
  void RefreshPricingList() override {}
  void PrintReport() override {}
  void ClearReports() override {}
  void ForgetProject() override {}
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
    ost = std::make_unique<Form>(desk, QStringLiteral("OST"));
    main = std::make_unique<TamoForm>(kit, *settings, shell, planDesk, workDesk);
    shell.Join(*main, *settings, *ost);
  }

  const Platform platform;
  PdfDraw& viewer;
  Desk desk;
  Files files;
  SharedFields shared;
  const Kit kit;
  Shell shell;
  PlanDeskOnOst planDesk;
  WorkDeskOnForms workDesk;
  std::unique_ptr<Form11> form11;
  std::unique_ptr<SettingsForm> settings;
  std::unique_ptr<Form> ost;
  std::unique_ptr<TamoForm> main;
};

Program::Program(const Platform& platform, PdfDraw& viewer)
    : parts_(std::make_unique<Parts>(platform, viewer)) {
  parts_->shell.onEnded = [this] {
    if (onEnded) onEnded();
  };
}

Program::~Program() = default;

void Program::Start() {
  parts_->desk.Dispatch([this] { parts_->main->Init(); });
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
