#include "windows/windowkeeper.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QScreen>
#include <QSettings>
#include <QShortcut>
#include <QTimer>
#include <QWindow>

#include "program/program.h"
#include "reports/reportsform.h"
#include "windows/formlayouts.h"
#include "windows/helptopics.h"
#include "windows/plancanvas.h"
#include "windows/reportprogress.h"

namespace tamo {
namespace {

constexpr int kActivationWait = 1000;  // milliseconds in which a window system answers a request
constexpr int kActivationDelay = 30;   // a click that brings a window to the front comes in this

}  // namespace

// The display goes before the windows: while widgets are taken down nothing is reported any more.
struct WindowKeeper::Parts {
  Parts(Program& given, PlanPictures* planPictures, const QString& file)
      : program(given),
        pictures(planPictures),
        placesFile(file),
        display(std::make_unique<Display>(given.GetDesk())) {}

  Program& program;
  PlanPictures* pictures;
  QString placesFile;
  std::map<const Form*, std::unique_ptr<FormWindow>> windows;
  std::unique_ptr<Display> display;
  ReportProgress progress;

  Form* activated = nullptr;  // the form whose window was last brought to the front
  // A request for activation that the window system has not answered yet.
  QPointer<QWidget> asked;
  QElapsedTimer askedSince;
  // A window that the window system has activated, and the form that was active then.
  Form* reported = nullptr;
  Form* activeThen = nullptr;
  QTimer reportTimer;

  void KeepPlace(const FormWindow& window) const {
    if (placesFile.isEmpty()) return;
    QSettings(placesFile, QSettings::IniFormat)
        .setValue(window.GetForm().Name(), window.saveGeometry());
  }
  void RestorePlace(FormWindow& window) const {
    if (placesFile.isEmpty()) return;
    const QByteArray place =
        QSettings(placesFile, QSettings::IniFormat).value(window.GetForm().Name()).toByteArray();
    if (!place.isEmpty()) window.restoreGeometry(place);
  }
  void TakeReport() {
    reportTimer.stop();
    if (program.GetDesk().InEvent()) {
      // A box is up inside an event; what was reported is still true behind it, or it is not.
      if (reported != nullptr) reportTimer.start();
      return;
    }
    Form* form = std::exchange(reported, nullptr);
    Desk& desk = program.GetDesk();
    if (form == nullptr || desk.Active() != activeThen || desk.Active() == form) return;
    desk.UserActivate(*form);
  }
};

WindowKeeper::WindowKeeper(Program& program, PlanPictures* pictures, const QString& placesFile)
    : parts_(std::make_unique<Parts>(program, pictures, placesFile)) {
  Display& display = *parts_->display;
  display.windowOf = [this](Form& form) -> QWidget* {
    const auto found = parts_->windows.find(&form);
    return found == parts_->windows.end() ? nullptr : found->second.get();
  };
  display.syncWindows = [this] { SyncWindows(); };
  display.afterSync = [this] { ShowPopups(); };
  for (Form* form : program.GetDesk().Forms()) {
    form->observer = [this] { parts_->display->MarkDirty(); };
    if (auto* reports = dynamic_cast<ReportsForm*>(form)) {
      reports->onProgress = [this](int done, int all) { return parts_->progress.Tell(done, all); };
      reports->onMade = [this](bool whole) { parts_->progress.End(whole); };
    }
  }
  program.GetFiles().onPendingChanged = [this] { parts_->display->MarkDirty(); };
  parts_->reportTimer.setSingleShot(true);
  parts_->reportTimer.setInterval(kActivationDelay);
  connect(&parts_->reportTimer, &QTimer::timeout, this, [this] { parts_->TakeReport(); });
}

WindowKeeper::~WindowKeeper() {
  for (const auto& [form, window] : parts_->windows) {
    if (window->isVisible()) parts_->KeepPlace(*window);
    window->removeEventFilter(this);
  }
  for (Form* form : parts_->program.GetDesk().Forms()) {
    form->observer = nullptr;
    if (auto* reports = dynamic_cast<ReportsForm*>(form)) {
      reports->onProgress = nullptr;
      reports->onMade = nullptr;
    }
  }
  parts_->program.GetFiles().onPendingChanged = nullptr;
  parts_->display.reset();
}

FormWindow* WindowKeeper::Window(Form& form) {
  std::unique_ptr<FormWindow>& window = parts_->windows[&form];
  if (window == nullptr) {
    window = std::make_unique<FormWindow>(form, *parts_->display);
    if (!form.Controls().empty()) {
      Builder builder(*window, *parts_->display, parts_->program, parts_->pictures);
      LayOut(builder);
    }
    window->Notice().onClick = [this] { parts_->program.TrySavesAgain(); };
    auto* help = new QShortcut(QKeySequence(Qt::Key_F1), window.get());
    connect(help, &QShortcut::activated, this, [this, &form] { ShowHelp(parts_->program, form); });
    window->installEventFilter(this);
    // What is hidden must be so before the window finds its size.
    parts_->display->ApplyContents();
    window->resize(window->firstSize);
    parts_->RestorePlace(*window);
    parts_->display->MarkDirty();
  }
  return window.get();
}

void WindowKeeper::SyncNow() {
  parts_->TakeReport();
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

}  // namespace

void WindowKeeper::SyncWindows() {
  if (!parts_->program.Running()) {
    EndWindows();
    return;
  }
  Desk& desk = parts_->program.GetDesk();
  const SharedFields& shared = parts_->program.Shared();
  const QString notice = parts_->program.GetFiles().Notice();
  // From the back to the front, so that new windows lie in the order of the forms.
  const std::vector<Form*> shown(desk.FrontToBack().rbegin(), desk.FrontToBack().rend());
  bool shownBehind = false;
  for (Form* form : shown) {
    FormWindow* window = Window(*form);
    if (window->windowTitle() != form->Caption()) window->setWindowTitle(form->Caption());
    window->Menus().Apply();
    window->SetNotice(notice);
    if (IsShell(*form)) {
      window->SetStatus(shared.JobID.isEmpty()
                            ? QStringLiteral("No project is open")
                            : shared.JobID + QStringLiteral("   ") + shared.JobName,
                        shared.Locked == QLatin1String("True"), shared.DataPath);
    }
    for (const auto& synced : window->onSynced) synced();
    if (window->isVisible()) continue;
    // An owner that was never shown has no window to stand over.
    const auto owner = parts_->windows.find(form->OwnerForm());
    SetOwner(*window, owner == parts_->windows.end() ? nullptr : owner->second.get());
    window->setAttribute(Qt::WA_ShowWithoutActivating, form != desk.Active());
    window->show();
    shownBehind = shownBehind || form != desk.Active();
  }
  for (const auto& [form, window] : parts_->windows) {
    if (form->Visible() || !window->isVisible()) continue;
    parts_->KeepPlace(*window);
    window->hide();
  }
  // A window system may bring a new window to the front although it was to stay behind.
  if (desk.Active() == parts_->activated && !shownBehind) return;
  parts_->activated = desk.Active();
  if (parts_->activated == nullptr) return;
  FormWindow* front = Window(*parts_->activated);
  front->raise();
  if (front->isActiveWindow() && !shownBehind) return;
  parts_->asked = front;
  parts_->askedSince.start();
  front->activateWindow();
}

void WindowKeeper::EndWindows() {
  for (const auto& [form, window] : parts_->windows) {
    if (!window->isVisible()) continue;
    parts_->KeepPlace(*window);
    window->hide();
  }
}

void WindowKeeper::ShowPopups() {
  for (const auto& [form, window] : parts_->windows) {
    window->Menus().ShowPopup(parts_->display->popupPlace);
  }
}

// The user went to another window of the program: that is the Desk's to know, unless the program
// itself asked for it. A click into a field there comes right after and says it better.
bool WindowKeeper::eventFilter(QObject* object, QEvent* event) {
  if (event->type() != QEvent::WindowActivate || parts_->display == nullptr) return false;
  auto* window = dynamic_cast<FormWindow*>(object);
  if (window == nullptr) return false;
  const bool waiting = !parts_->asked.isNull() && parts_->askedSince.elapsed() < kActivationWait;
  if (waiting) {
    if (parts_->asked == window) parts_->asked.clear();
    return false;
  }
  Desk& desk = parts_->program.GetDesk();
  if (parts_->display->Syncing() || &window->GetForm() == desk.Active()) return false;
  parts_->reported = &window->GetForm();
  parts_->activeThen = desk.Active();
  parts_->reportTimer.start();
  return false;
}

QWidget* WindowKeeper::WindowOf(const Form& form) {
  return Window(const_cast<Form&>(form));
}

QWidget* WindowKeeper::WidgetOf(const Control& control) {
  Window(control.Owner());
  Binding* binding = parts_->display->Of(control);
  return binding == nullptr ? nullptr : &binding->Widget();
}

QWidget* WindowKeeper::ClickTarget(const Control& control) {
  Window(control.Owner());
  Binding* binding = parts_->display->Of(control);
  return binding == nullptr ? nullptr : &binding->ClickTarget();
}

QAction* WindowKeeper::ActionOf(const MenuEntry& entry) {
  return Window(entry.Owner())->Menus().ActionOf(entry);
}

namespace {

ListBinding* ListOf(Display& display, const OrderedList& list) {
  return dynamic_cast<ListBinding*>(display.Of(list));
}

}  // namespace

QRect WindowKeeper::RowRect(const OrderedList& list, int row) {
  Window(list.Owner());
  ListBinding* binding = ListOf(*parts_->display, list);
  if (binding == nullptr || row < 0 || row >= list.Count()) return {};
  const QModelIndex index = binding->View().Model().index(row);
  if (!binding->View().viewport()->rect().contains(binding->View().visualRect(index).center()))
    binding->View().scrollTo(index);
  return binding->View().visualRect(index);
}

QRect WindowKeeper::TickRect(const CheckList& list, int row) {
  if (RowRect(list, row).isEmpty()) return {};
  return ListOf(*parts_->display, list)->View().TickRect(row);
}

void WindowKeeper::DragTo(const OrderedList& list, int row) {
  Window(list.Owner());
  if (ListBinding* binding = ListOf(*parts_->display, list)) binding->DragTo(row);
}

void WindowKeeper::PickPath(FileBrowser& browser, const QString& path, bool twice) {
  Window(browser.Owner());
  parts_->program.GetDesk().Pick(browser, path, twice);
}

QWidget* WindowKeeper::NoticeOf(const Form& form) {
  return &Window(const_cast<Form&>(form))->Notice();
}

QWidget* WindowKeeper::Plan() {
  Form* ost = parts_->program.FindForm(QStringLiteral("OST"));
  return ost == nullptr ? nullptr : FindPlanCanvas(*Window(*ost));
}

QPointF WindowKeeper::PlanPlace(PagePoint at) {
  auto* canvas = dynamic_cast<PlanCanvas*>(Plan());
  return canvas == nullptr ? QPointF() : canvas->PlaceInView(at);
}

}  // namespace tamo
