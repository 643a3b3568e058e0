#include "program/program.h"

#include "common/failure.h"
#include "common/paths.h"
#include "history/history.h"
#include "program/changedquestion.h"
#include "program/followers.h"
#include "program/frontprint.h"
#include "program/homepage.h"
#include "program/linesandmarks.h"
#include "program/menus.h"
#include "program/planadapters.h"
#include "program/pricingadapters.h"
#include "program/readagain.h"
#include "program/recovery.h"
#include "program/reportadapters.h"
#include "program/reportsaver.h"
#include "program/suggestions.h"
#include "program/systemsheets.h"
#include "program/takeoffadapters.h"
#include "program/versionadapters.h"
#include "program/waitingfields.h"
#include "schedule/scheduleform.h"
#include "workspace/form11.h"

namespace tamo {
namespace {

SharedFields FirstFields(const Platform& platform) {
  SharedFields shared;
  shared.Separator = PlatformSeparator();
  shared.zDir = platform.programFolder;
  return shared;
}

}  // namespace

// The hand-overs stand before the forms: they hold references to forms that are made after them,
// and are asked nothing before all is made.
struct Program::Parts {
  const Platform platform;
  PdfDraw& viewer;
  Desk desk{platform.messages};
  Files files{platform.disk};
  SharedFields shared = FirstFields(platform);
  const Kit kit{desk, files, shared, platform};
  History history{platform, files, shared};

  Shell shell{kit, main, settings, ost};
  FollowersOnForms followers{pricing, adjustment,
                             reports, ost,
                             history, {&pricing, &rooms, &areas, &bottomLine, &adjustment}};
  ReportFollows reportFollows{reports};
  StartOfPricing startOfPricing{settings, main};
  PricingOnForm pricingOnForm{pricing, ost};
  PlanOfProjectOnOst planOfProject{ost};
  ProjectKeeperOnTamo projectKeeper{main};
  PlanToolsOnOst planTools{ost};
  TakeoffExitsOnForms takeoffExits{shell, main, ost};
  MarksOnPlan entryMarks{ost, shared};
  TakingBack takingBack{kit, entryMarks, reportFollows};
  WaitingFields takeoffFields{kit, ost, rooms, areas, entryMarks};
  LinesAndMarks linesAndMarks{kit, ost, rooms, areas};
  ProjectRecordOnTamo projectRecord{main};
  BidChangerOnForms bidChanger{kit, main, rooms, areas, bottomLine};
  ReportSaver reportSaver{kit};
  SystemSheets systemSheets{kit, pricing};

  Form11 form11{kit};
  SettingsForm settings{kit, shell};
  OSTForm ost{kit, viewer, projectKeeper, takeoffFields};
  TamoForm main{kit, settings, {shell, planOfProject, followers}};
  PricingForm pricing{kit, reportFollows, startOfPricing, startOfPricing};
  RFSForm rooms{kit, planTools, pricingOnForm, reportFollows, takeoffExits, takingBack};
  EstimateForm areas{kit, planTools, pricingOnForm, reportFollows, takeoffExits, takingBack};
  BottomLine bottomLine{kit, reportFollows};
  AdjustmentForm adjustment{kit, reportFollows};
  ReportsForm reports{kit, {pricing, projectRecord, shell, settings, ost, history, reportSaver}};
  VersionsForm versions{kit, history, reports, bidChanger};
  DocsForm docs{kit, [this] { shell.BringUpShell(); }};
  ScheduleForm schedule{kit, ost};
  ReadAgain readAgain{kit, {main, ost, pricing, rooms, areas, bottomLine, reports}};
  Menus menus{kit,
              shell,
              {main, settings, ost, pricing, rooms, areas, bottomLine, adjustment, reports, docs,
               versions}};
  Recovery recovery{kit, {shell, settings, main, bottomLine}};
  HomePage home{kit, {main, ost, pricing, docs, takingBack}};
  Suggestions suggestions{kit,
                          {{pricing.Description, pricing.DescriptionsList, NameKind::System},
                           {pricing.Units, pricing.UnitsList, NameKind::TakeoffUnit},
                           {pricing.Material, pricing.MaterialsList, NameKind::Material},
                           {pricing.OrderUnits, pricing.oUnitsList, NameKind::OrderUnit},
                           {rooms.Room, rooms.RoomsList, NameKind::Room},
                           {rooms.Description, rooms.DescriptionsList, NameKind::System},
                           {rooms.Area, rooms.AreaList, NameKind::FinishArea},
                           {areas.Area, areas.AreasList, NameKind::FreeArea},
                           {areas.eDescription, areas.DescriptionsList, NameKind::System},
                           {schedule.System, pricing.DescriptionsList, NameKind::System},
                           {schedule.FloorArea, rooms.AreaList, NameKind::FinishArea},
                           {schedule.BaseArea, rooms.AreaList, NameKind::FinishArea},
                           {schedule.WallsArea, rooms.AreaList, NameKind::FinishArea},
                           {schedule.CeilingArea, rooms.AreaList, NameKind::FinishArea}}};

  // What one part tells the others.
  void Bind() {
    shell.beforeEnd = [this] {
      bottomLine.SaveUnsaved();
      ost.SaveMarks();
    };
    desk.onRest = [this] { AfterEvent(); };
    desk.onKeyFirst = [this](const Control& control, const Key& key) {
      return suggestions.TakeKey(control, key);
    };
    desk.onEdited = [this](TextField& field) { suggestions.Edited(field); };
    schedule.onSystemMade =
        systemSheets.onNewSystem = [this](const QString& name) { ListSystem(name); };
    systemSheets.Bind();
    linesAndMarks.Bind();
    files.keepMine = [this](const QString& path, const QString& mine, const QString& theirs) {
      return desk.GetMessages().Ask(ChangedQuestion({path, mine, theirs}, pricing.MarkupTexts()));
    };
    main.onClose = [this] { return shell.CloseMain(); };
    ost.onClose = [this] { return shell.CloseOst(); };
  }

  // Lists of systems that are loaded are written whole: they must know the new one.
  void ListSystem(const QString& name) {
    for (OrderedList* list :
         {&pricing.DescriptionsList, &rooms.DescriptionsList, &areas.DescriptionsList}) {
      if (!list->Empty() && list->FindAnyCase(name) < 0) list->Insert(0, name);
    }
  }

  void AfterEvent() {
    suggestions.Follow();
    takingBack.EndEvent();
    takeoffFields.Follow();
    ost.FollowMarks(linesAndMarks.Revision());
    recovery.Follow();
    home.Follow();
  }
};

Program::Program(const Platform& platform, PdfDraw& viewer)
    : parts_(new Parts{.platform = platform, .viewer = viewer}) {
  Parts& parts = *parts_;
  parts.Bind();
  parts.shell.onEnded = [this] {
    parts_->recovery.End();
    parts_->main.hold.End();
    if (onEnded) onEnded();
  };
  parts.home.openPlan = [this](const QString& path) { OpenPlan(path); };
  parts.settings.onLook = [this] {
    if (onLook) onLook();
  };
  parts.reportSaver.company = [this] { return CompanyName(); };
}

Program::~Program() = default;

void Program::Start() {
  parts_->desk.Dispatch([this] {
    parts_->ost.Load();
    parts_->main.Init();
    parts_->history.Finish();
    parts_->recovery.Begin();
  });
}

bool Program::Running() const {
  return parts_->shell.Running();
}
void Program::ReadPictures(std::shared_ptr<const SheetPictures> pictures) {
  parts_->schedule.pictures = std::move(pictures);
}
void Program::ChooseFilesWith(FileChooser chooser) {
  parts_->reportSaver.onChoose = chooser;
  parts_->systemSheets.onChoose = std::move(chooser);
}
void Program::DrawChartsWith(std::function<void(const ChartData& chart)> draw) {
  parts_->reportSaver.onChart = std::move(draw);
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
void Program::PrintFront(Form& form) {
  tamo::PrintFront(parts_->kit, form);
}
Suggestions& Program::GetSuggestions() {
  return parts_->suggestions;
}
Form* Program::FindForm(const QString& name) {
  return parts_->desk.Find(name);
}

const QString* Program::FindText(const QString& form, const QString& name) {
  const Form* found = parts_->desk.Find(form);
  return found == nullptr ? nullptr : found->FindText(name);
}

QString Program::Look() const {
  return parts_->settings.Look();
}

QString Program::CompanyName() const {
  return parts_->settings.CompanyName.Text();
}

void Program::OpenPlan(const QString& path) {
  OSTForm& ost = parts_->ost;
  parts_->desk.Dispatch([&] {
    ost.Show();
    ost.PlanLocation.SetText(path);
  });
  parts_->desk.PressKey(ost.PlanLocation, Key::Named(Key::Name::Enter));
}

void Program::TrySavesAgain() {
  parts_->desk.Dispatch([this] {
    Files& files = parts_->files;
    files.TryAgain();
    const QString question = files.BeginAnewQuestion();
    if (!question.isEmpty() && parts_->platform.messages.Ask(question)) files.BeginAnew();
    parts_->readAgain.Run();
    parts_->main.conflicts.LookAround();
  });
}

void Program::BeginHomePage() {
  parts_->home.Begin();
}

void Program::RefreshHomePage() {
  parts_->desk.Dispatch([this] { parts_->home.Refresh(); });
}

bool Program::HomePageIsUpToDate() {
  return parts_->home.Idle();
}

QString Program::Notice() const {
  const QString unsaved = parts_->files.Notice();
  return unsaved.isEmpty() ? parts_->main.conflicts.Notice() : unsaved;
}

void Program::Tick() {
  if (!Running()) return;
  if (parts_->desk.InEvent()) return parts_->main.hold.TickInEvent();
  parts_->desk.Dispatch([this] {
    parts_->main.hold.Tick();
    parts_->readAgain.Tick();
    parts_->main.conflicts.Tick();
    parts_->home.Tick();
  });
}

bool Program::MayEnd() {
  bool may = false;
  GetDesk().Dispatch([&] { may = parts_->shell.MayEnd(); });
  return may;
}

void Program::KeepWaiting() {
  parts_->recovery.Keep();
}

// A list that could not be read is not written over; its new lines are kept with what waits.
void Program::SaveAll() {
  for (const std::function<void()>& save : std::initializer_list<std::function<void()>>{
           [this] { parts_->bottomLine.SaveUnsaved(); }, [this] { parts_->ost.SaveMarks(); },
           [this] { parts_->files.TryAgain(); }}) {
    try {
      save();
    } catch (const RunTimeFailure&) {
      // Said when the user does the same.
    }
  }
  parts_->recovery.Keep();
}

}  // namespace tamo
