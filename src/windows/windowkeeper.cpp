#include "windows/windowkeeper.h"

#include <QGuiApplication>
#include <QWindow>
#include <map>

#include "common/paths.h"
#include "program/program.h"
#include "reports/reportsform.h"
#include "schedule/scheduleform.h"
#include "windows/accessible.h"
#include "windows/builder.h"
#include "windows/formlayouts.h"
#include "windows/look.h"
#include "windows/reportprogress.h"
#include "windows/sidebyside.h"
#include "windows/suggestionview.h"
#include "windows/windowactivation.h"
#include "windows/windowkeys.h"
#include "windows/windowplaces.h"

namespace tamo {

// The display goes before the windows: while widgets are taken down nothing is reported any more.
struct WindowKeeper::Parts {
  Program& program;
  PlanPictures* pictures;
  WindowPlaces places;
  SideBySide side;
  std::map<const Form*, std::unique_ptr<FormWindow>> windows{};
  std::unique_ptr<Display> display = std::make_unique<Display>(program.GetDesk());
  ReportProgress progress{QStringLiteral("The report is being made."), 50};
  ReportProgress schedule{QStringLiteral("The schedule is being worked on."), 500};
  WindowActivation activation{program.GetDesk()};
  QPointer<SuggestionView> offer{};

  FormWindow* Existing(const Form* form) {
    const auto found = windows.find(form);
    return found == windows.end() ? nullptr : found->second.get();
  }
};

WindowKeeper::WindowKeeper(Program& program, PlanPictures* pictures, const QString& placesFile)
    : parts_(new Parts{.program = program,
                       .pictures = pictures,
                       .places = WindowPlaces(placesFile),
                       .side = SideBySide(placesFile)}) {
  InstallAccessibility();
  Display& display = *parts_->display;
  display.windowOf = [this](Form& form) -> QWidget* { return parts_->Existing(&form); };
  display.syncWindows = [this] { SyncWindows(); };
  display.afterSync = [this] {
    ShowPopups();
    ShowSuggestions(parts_->program, *parts_->display, parts_->offer);
  };
  for (Form* form : program.GetDesk().Forms()) {
    form->observer = [this] { parts_->display->MarkDirty(); };
    if (auto* reports = dynamic_cast<ReportsForm*>(form)) {
      reports->onProgress = [this](int done, int all) { return parts_->progress.Tell(done, all); };
      reports->onMade = [this](bool whole) { parts_->progress.End(whole); };
    }
    if (auto* schedule = dynamic_cast<ScheduleForm*>(form)) {
      schedule->onProgress = [this](int done, int all) { return parts_->schedule.Tell(done, all); };
      schedule->onDone = [this](bool whole) { parts_->schedule.End(whole); };
    }
  }
  program.GetFiles().onPendingChanged = [this] { parts_->display->MarkDirty(); };
}

WindowKeeper::~WindowKeeper() {
  for (const auto& [form, window] : parts_->windows) {
    if (window->isVisible()) parts_->places.Keep(form->Name(), *window);
    window->removeEventFilter(this);
  }
  for (Form* form : parts_->program.GetDesk().Forms()) {
    form->observer = nullptr;
    if (auto* reports = dynamic_cast<ReportsForm*>(form)) {
      reports->onProgress = nullptr;
      reports->onMade = nullptr;
    }
    if (auto* schedule = dynamic_cast<ScheduleForm*>(form)) {
      schedule->onProgress = nullptr;
      schedule->onDone = nullptr;
    }
  }
  parts_->program.GetFiles().onPendingChanged = nullptr;
  parts_->display.reset();
}

Display& WindowKeeper::GetDisplay() {
  return *parts_->display;
}

Program& WindowKeeper::GetProgram() {
  return parts_->program;
}

SuggestionView* WindowKeeper::Offer() const {
  return parts_->offer;
}

FormWindow& WindowKeeper::WindowOf(const Form& form) {
  std::unique_ptr<FormWindow>& window = parts_->windows[&form];
  if (window == nullptr) {
    if (beforeWindow) beforeWindow();
    window = MakeWindow(const_cast<Form&>(form));
    window->installEventFilter(this);
    // What is hidden must be so before the window finds its size.
    parts_->display->ApplyContents();
    window->resize(window->firstSize);
    parts_->places.Restore(form.Name(), *window);
    parts_->display->MarkDirty();
  }
  return *window;
}

std::unique_ptr<FormWindow> WindowKeeper::MakeWindow(Form& form) {
  auto window = std::make_unique<FormWindow>(form, *parts_->display);
  if (!form.Controls().empty()) {
    Builder builder(*window, *parts_->display, parts_->program, parts_->pictures);
    LayOut(builder);
  }
  window->Notice().onClick = [this] { parts_->program.TrySavesAgain(); };
  GiveWindowKeys(*window, parts_->program, askForPlan);
  return window;
}

void WindowKeeper::SyncNow() {
  parts_->activation.TellDesk();
  parts_->display->SyncNow();
}

namespace {

// A form that is shown by another one stays above its window. Asked when it is shown: an owner that
// is not on the screen then is none.
void SetOwner(FormWindow& window, QWidget* owner) {
  if (owner != nullptr && !owner->isVisible()) owner = nullptr;
  window.winId();
  QWindow* above = owner == nullptr ? nullptr : owner->windowHandle();
  for (QWindow* step = above; step != nullptr; step = step->transientParent()) {
    if (step == window.windowHandle()) return;
  }
  window.windowHandle()->setTransientParent(above);
}

bool IsShell(const Form& form) {
  return form.Name() == QLatin1String("Tamo") || form.Name() == QLatin1String("OST");
}

// The form's caption, and what it is about: windows are told apart in a task bar, too.
QString TitleOf(const Form& form, const SharedFields& shared) {
  QStringList title = {form.Caption()};
  const auto is = [&](const char* name) { return form.Name() == QLatin1String(name); };
  const bool ofProject = !is("Settings") && !is("Docs");
  if (ofProject && !shared.JobID.isEmpty())
    title += (shared.JobID + QLatin1Char(' ') + shared.JobName).trimmed();
  if (is("OST")) {
    const auto* plan = dynamic_cast<const TextField*>(form.Find(QStringLiteral("PlanLocation")));
    if (plan != nullptr && !plan->Empty()) title += FileNameOf(plan->Text());
    const QString* sheet = form.FindText(QStringLiteral("SheetTitle"));
    if (sheet != nullptr && !sheet->isEmpty()) title += *sheet;
  }
  return title.join(QStringLiteral(" - "));
}

void ShowFacts(FormWindow& window, const SharedFields& shared, const QString& notice) {
  const Form& form = window.GetForm();
  const QString title = TitleOf(form, shared);
  if (window.windowTitle() != title) window.setWindowTitle(title);
  window.Menus().Apply();
  window.KeepMenusInSight();
  window.SetNotice(notice);
  if (IsShell(form)) {
    window.SetStatus(shared.JobID.isEmpty() ? QStringLiteral("No project is open")
                                            : shared.JobID + QStringLiteral("   ") + shared.JobName,
                     shared.Locked == QLatin1String("True"), shared.DataPath);
  }
  for (const auto& synced : window.onSynced) synced();
}

}  // namespace

void WindowKeeper::SyncWindows() {
  if (!parts_->program.Running()) {
    HideWindows(true);
    return;
  }
  const Desk& desk = parts_->program.GetDesk();
  const QString notice = parts_->program.Notice();
  // From the back to the front, so that new windows lie in the order of the forms.
  const std::vector<Form*> shown(desk.FrontToBack().rbegin(), desk.FrontToBack().rend());
  bool shownBehind = false;
  for (const Form* form : shown) {
    FormWindow& window = WindowOf(*form);
    ShowFacts(window, parts_->program.Shared(), notice);
    if (ShowWindow(window) && form != desk.Active()) shownBehind = true;
  }
  HideWindows(false);
  if (const Form* front = parts_->activation.ToRaise(shownBehind)) {
    parts_->activation.Raise(WindowOf(*front), shownBehind);
    RaiseOwned(*front);
  }
}

// Not every window system lifts what stands above a window together with it.
void WindowKeeper::RaiseOwned(const Form& owner) {
  const std::vector<Form*>& order = parts_->program.GetDesk().FrontToBack();
  for (auto form = order.rbegin(); form != order.rend(); ++form) {
    if ((*form)->OwnerForm() == &owner && *form != &owner) WindowOf(**form).raise();
  }
}

// False when it was on the screen already.
bool WindowKeeper::ShowWindow(FormWindow& window) {
  if (window.isVisible()) return false;
  const Form& form = window.GetForm();
  // An owner that was never shown has no window to stand over.
  SetOwner(window, parts_->Existing(form.OwnerForm()));
  parts_->places.Place(form.Name(), window);
  PlaceBesidePlan(window);
  window.setAttribute(Qt::WA_ShowWithoutActivating, &form != parts_->program.GetDesk().Active());
  window.show();
  return true;
}

namespace {

bool IsTakeoff(const Form& form) {
  return form.Name() == QLatin1String("RFSForm") || form.Name() == QLatin1String("EstimateForm");
}

}  // namespace

// Plan and takeoff don't lie over each other. Where nobody looks the screen is a name only.
void WindowKeeper::PlaceBesidePlan(FormWindow& shown) {
  if (QGuiApplication::platformName() == QLatin1String("offscreen")) return;
  const Desk& desk = parts_->program.GetDesk();
  FormWindow* plan = parts_->Existing(desk.Find(QStringLiteral("OST")));
  if (plan == nullptr || plan->isMinimized()) return;
  for (const char* name : {"RFSForm", "EstimateForm"}) {
    FormWindow* takeoff = parts_->Existing(desk.Find(QLatin1String(name)));
    if (takeoff == nullptr || (&shown != plan && &shown != takeoff)) continue;
    const bool both = &shown == plan ? takeoff->isVisible() : plan->isVisible();
    if (both) parts_->side.Arrange(QLatin1String(name), *takeoff, *plan);
  }
}

// Those of forms that are hidden; with `all` the others, too.
void WindowKeeper::HideWindows(bool all) {
  for (const auto& [form, window] : parts_->windows) {
    if (!window->isVisible() || (form->Visible() && !all)) continue;
    parts_->places.Keep(form->Name(), *window);
    if (IsTakeoff(*form)) parts_->side.Leave(form->Name(), *window);
    window->hide();
  }
}

void WindowKeeper::ShowPopups() {
  for (const auto& [form, window] : parts_->windows) {
    window->Menus().ShowPopup(parts_->display->popupPlace);
  }
}

// The user went to another window of the program: that is the Desk's to know, unless the program
// itself asked for it.
bool WindowKeeper::eventFilter(QObject* object, QEvent* event) {
  if (event->type() != QEvent::WindowActivate || parts_->display == nullptr) return false;
  auto* window = dynamic_cast<FormWindow*>(object);
  if (window != nullptr) parts_->activation.Activated(*window, parts_->display->Syncing());
  return false;
}

}  // namespace tamo
