#include "player/windowsstage.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QMenu>
#include <QPixmap>
#include <QRadioButton>
#include <QTest>
#include <QTextStream>
#include <QToolButton>

#include "common/desk.h"
#include "player/formsstage.h"
#include "player/programplayed.h"
#include "player/screencheck.h"
#include "player/trouble.h"
#include "player/widgets.h"
#include "windows/look.h"
#include "windows/plancanvas.h"
#include "windows/suggestionview.h"
#include "windows/windowprobe.h"

namespace tamo::player {
namespace {

constexpr int kLateReport = 60;  // milliseconds

// What a platform without a screen can't do is no matter of the program.
void SayWhatMatters(QtMsgType, const QMessageLogContext&, const QString& text) {
  if (text.startsWith(QStringLiteral("This plugin does not support")) ||
      text.startsWith(QStringLiteral("QStandardPaths")))
    return;
  QTextStream(stderr) << text << '\n';
}

// The application object of this process, shared by all stages.
class Screen {
 public:
  Screen() {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY") &&
        qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
      qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(SayWhatMatters);
    application_ = std::make_unique<QApplication>(argumentCount_, arguments_);
    ApplyLook(Look::Of(QApplication::palette()));
    QApplication::setQuitOnLastWindowClosed(false);
  }

  static std::shared_ptr<Screen> Shared() {
    static std::weak_ptr<Screen> shared;
    std::shared_ptr<Screen> screen = shared.lock();
    if (screen == nullptr) shared = screen = std::make_shared<Screen>();
    return screen;
  }

 private:
  int argumentCount_ = 1;
  char name_[15] = "tamo_scenario";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_;
};

class WindowsStage : public Stage {
 public:
  void Raise(Played& played) override;
  void Strike() override;
  void ToFront() override;

  void ChooseMenu(MenuEntry& entry) override;
  void Focus(Control& control) override;
  void Type(const QString& text) override;
  void PressKey(const Key& key) override;
  void Enter(const QString& text) override;
  void Paste(const QString& text) override;
  void Click(Control& control) override;
  void DoubleClick(Control& control) override;
  void RightClick(Control& control) override;
  void ClickNotice() override;
  void SelectRow(OrderedList& list, int row) override;
  void RightSelectRow(OrderedList& list, int row) override;
  void DoubleSelectRow(OrderedList& list, int row) override;
  void TickRow(CheckList& list, int row) override;
  void ScrollTo(OrderedList& list, int row) override;
  void ClickSuggestion(int row) override;
  void Pick(FileBrowser& browser, const QString& path, bool twice) override;
  void CloseBox(Form& form) override;

  void PlanMode(int mode) override;
  void PlanLine(PagePoint from, PagePoint to) override;
  void PlanCircle(PagePoint at) override;
  void PlanPress(PagePoint at) override;
  void PlanDrag(PagePoint from, PagePoint to) override;
  void PlanKey(const PlanStroke& stroke) override;
  void PlanScroll(double dx, double dy) override;
  void PlanPage(int page) override;
  void PlanBox(PagePoint from, PagePoint to) override;
  void FinishSearch();
  void PlanOutline(PlanTool tool, const std::vector<PagePoint>& points) override;

  QString Difference(bool front) override;
  bool SavePicture(Form& form, const QString& path) override;

 private:
  Desk& GetDesk() const { return played_->GetDesk(); }
  QWidget& GoTo(const Form& form, bool settled = true);  // its window, in front and active
  QWidget& Target(const Control& control);
  QPointF PlaceOf(const Control& control);
  QPointF PlaceOfRow(const OrderedList& list, int row);
  QWidget& FocusWidget() const;
  QWidget& Plan();
  void PressOnPlan(PagePoint from, PagePoint to);
  // Clicks the button of the plan's own tool bar; false when there is none.
  bool ClickTool(const QString& caption);
  void TakeTool(int mode);
  void AnswerNoPrinter();
  void GiveBackActivation();
  QString OfferDifference() const;

  std::shared_ptr<Screen> screen_ = Screen::Shared();
  ProgramPlayed* played_ = nullptr;
  std::unique_ptr<test::WindowProbe> keeper_;
};

void WindowsStage::Raise(Played& played) {
  played_ = dynamic_cast<ProgramPlayed*>(&played);
  if (played_ == nullptr) Fail(QStringLiteral("this program has no windows"));
  keeper_ = std::make_unique<test::WindowProbe>(played_->GetProgram(), played_->Pictures());
}

void WindowsStage::Strike() {
  keeper_.reset();
  played_ = nullptr;
  Settle();
}

void WindowsStage::ToFront() {
  if (const Form* active = GetDesk().Active()) GoTo(*active);
}

// A click on what takes the focus comes right behind the activation that it causes; the program
// hears of the click alone. Before any other click it hears of the window first.
QWidget& WindowsStage::GoTo(const Form& form, bool settled) {
  keeper_->SyncNow();
  QWidget* window = keeper_->WindowOf(form);
  if (window == nullptr || !window->isVisible())
    Fail(QStringLiteral("%1 has no window on the screen").arg(form.Name()));
  if (!window->isActiveWindow()) {
    window->raise();
    window->activateWindow();
    for (int i = 0; i < 20 && !window->isActiveWindow(); ++i) QCoreApplication::processEvents();
    if (!window->isActiveWindow()) (void)QTest::qWaitForWindowActive(window, 1000);
    if (!settled) return *window;
    keeper_->SyncNow();
    Settle();
  }
  return *window;
}

QWidget& WindowsStage::Target(const Control& control) {
  GoTo(control.Owner(), !control.takesFocus);
  QWidget* widget = keeper_->ClickTarget(control);
  if (widget == nullptr)
    Fail(QStringLiteral("%1 has no widget in its window").arg(control.FullName()));
  return *widget;
}

QPointF WindowsStage::PlaceOf(const Control& control) {
  QWidget& widget = Target(control);
  Spot spot = Spot::Middle;
  if (dynamic_cast<const TextField*>(&control) != nullptr) spot = Spot::End;
  if (qobject_cast<QCheckBox*>(&widget) != nullptr ||
      qobject_cast<QRadioButton*>(&widget) != nullptr)
    spot = Spot::Start;
  return OpenPlace(widget, widget.rect(), control.FullName(), spot);
}

QPointF WindowsStage::PlaceOfRow(const OrderedList& list, int row) {
  QWidget& widget = Target(list);
  const QRect place = keeper_->RowRect(list, row);
  return OpenPlace(widget, place, QStringLiteral("row %1 of %2").arg(row).arg(list.FullName()));
}

QWidget& WindowsStage::FocusWidget() const {
  keeper_->SyncNow();
  const Control* control = GetDesk().Focused();
  if (control == nullptr) Fail(QStringLiteral("nothing has the focus"));
  QWidget* widget = QApplication::focusWidget();
  if (widget == nullptr) widget = keeper_->WidgetOf(*control);
  if (widget == nullptr) Fail(QStringLiteral("no widget has the focus"));
  return *widget;
}

// Nobody answers a print dialog here.
void WindowsStage::AnswerNoPrinter() {
  if (auto* plan = dynamic_cast<PlanCanvas*>(keeper_->Plan()))
    plan->askForPrinter = [](QPrinter&) { return false; };
}

void WindowsStage::ChooseMenu(MenuEntry& entry) {
  if (entry.Owner().Name() == QStringLiteral("OST")) AnswerNoPrinter();
  QWidget& window = *keeper_->WindowOf(entry.Owner());
  if (QApplication::activePopupWidget() == nullptr) GoTo(entry.Owner());
  QAction* action = keeper_->ActionOf(entry);
  if (action == nullptr) Fail(QStringLiteral("%1 is in no menu").arg(entry.FullName()));
  // A title in the menu bar only opens its entries; what the entry itself does is asked of the
  // form.
  if (action->menu() != nullptr) {
    GetDesk().ChooseMenu(entry);
    return;
  }
  QList<QAction*> above;
  for (const MenuEntry* at = entry.Parent(); at != nullptr; at = at->Parent()) {
    if (QAction* menu = keeper_->ActionOf(*at)) above.prepend(menu);
  }
  ChooseAction(window, *action, above);
}

// As the letter underlined in a label does.
void WindowsStage::Focus(Control& control) {
  GoTo(control.Owner(), false);
  QWidget* widget = keeper_->WidgetOf(control);
  if (widget == nullptr) Fail(QStringLiteral("%1 has no widget").arg(control.FullName()));
  if (QApplication::focusWidget() == widget && GetDesk().Focused() != &control) {
    // Its window gave it the toolkit's focus back on the way to the front: setting it moves
    // nothing.
    QFocusEvent focusIn(QEvent::FocusIn, Qt::ShortcutFocusReason);
    QCoreApplication::sendEvent(widget, &focusIn);
    return;
  }
  widget->setFocus(Qt::ShortcutFocusReason);
}

void WindowsStage::Type(const QString& text) {
  for (qsizetype at = 0; at < text.size(); ++at) {
    const Key key = KeyFor(text[at]);
    if (!key.Is(Key::Name::Character)) {
      SendKey(FocusWidget(), key);
    } else {
      const bool pair = text[at].isHighSurrogate() && at + 1 < text.size();
      SendTyped(FocusWidget(), text.mid(at, pair ? 2 : 1));
      if (pair) ++at;
    }
  }
}

void WindowsStage::PressKey(const Key& key) {
  SendKey(FocusWidget(), key);
}

void WindowsStage::Enter(const QString& text) {
  QWidget& widget = FocusWidget();
  const auto* field = dynamic_cast<TextField*>(GetDesk().Focused());
  if (field == nullptr)
    Fail(QStringLiteral("%1 has the focus, and no text can be entered there")
             .arg(GetDesk().Focused()->FullName()));
  QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
  if (!text.isEmpty()) {
    Type(text);
  } else if (!field->Empty()) {
    PressKey(Key::Named(Key::Name::Backspace));
  }
  PressKey(Key::Named(Key::Name::Enter));
}

void WindowsStage::Paste(const QString& text) {
  QWidget& widget = FocusWidget();
  QGuiApplication::clipboard()->setText(text);
  QTest::keyClick(&widget, text.isEmpty() ? Qt::Key_X : Qt::Key_V, Qt::ControlModifier);
}

void WindowsStage::Click(Control& control) {
  const QPointF place = PlaceOf(control);
  SendClick(Target(control), place, Qt::LeftButton);
}

void WindowsStage::DoubleClick(Control& control) {
  const QPointF place = PlaceOf(control);
  SendDoubleClick(Target(control), place);
}

void WindowsStage::RightClick(Control& control) {
  const QPointF place = PlaceOf(control);
  SendClick(Target(control), place, Qt::RightButton);
}

void WindowsStage::ClickNotice() {
  const Form* active = GetDesk().Active();
  QWidget* strip = active == nullptr ? nullptr : keeper_->NoticeOf(*active);
  if (strip == nullptr) Fail(QStringLiteral("no window shows the notice"));
  SendClick(*strip, OpenPlace(*strip, strip->rect(), QStringLiteral("the notice")), Qt::LeftButton);
}

void WindowsStage::SelectRow(OrderedList& list, int row) {
  const QPointF place = PlaceOfRow(list, row);
  SendClick(Target(list), place, Qt::LeftButton);
}

void WindowsStage::RightSelectRow(OrderedList& list, int row) {
  const QPointF place = PlaceOfRow(list, row);
  SendClick(Target(list), place, Qt::RightButton);
}

void WindowsStage::DoubleSelectRow(OrderedList& list, int row) {
  const QPointF place = PlaceOfRow(list, row);
  SendDoubleClick(Target(list), place);
}

void WindowsStage::TickRow(CheckList& list, int row) {
  QWidget& widget = Target(list);
  keeper_->RowRect(list, row);
  const QPointF place =
      OpenPlace(widget, keeper_->TickRect(list, row),
                QStringLiteral("the check box of row %1 of %2").arg(row).arg(list.FullName()));
  SendClick(widget, place, Qt::LeftButton);
}

void WindowsStage::ScrollTo(OrderedList& list, int row) {
  Target(list);
  keeper_->DragTo(list, row);
}

void WindowsStage::ClickSuggestion(int row) {
  keeper_->SyncNow();
  QListWidget& names = keeper_->Offer()->Names();
  const QRect place = names.visualItemRect(names.item(row));
  SendClick(*names.viewport(), OpenPlace(*names.viewport(), place, names.item(row)->text()),
            Qt::LeftButton);
}

void WindowsStage::Pick(FileBrowser& browser, const QString& path, bool twice) {
  GoTo(browser.Owner());
  keeper_->PickPath(browser, path, twice);
}

void WindowsStage::CloseBox(Form& form) {
  QWidget* window = keeper_->WindowOf(form);
  if (window == nullptr) Fail(QStringLiteral("%1 has no window").arg(form.Name()));
  window->close();
}

QWidget& WindowsStage::Plan() {
  const Form* form = played_->FindForm(QStringLiteral("OST"));
  if (form == nullptr || !form->Visible())
    Fail(QStringLiteral("the plan can't be reached: the window of OST is not visible"));
  GoTo(*form);
  QWidget* plan = keeper_->Plan();
  if (plan == nullptr || !plan->isVisible()) Fail(QStringLiteral("the plan is not on the screen"));
  return *plan;
}

void WindowsStage::TakeTool(int mode) {
  if (played_->Viewer().Tool() != static_cast<PlanTool>(mode)) PlanMode(mode);
}

bool WindowsStage::ClickTool(const QString& caption) {
  for (auto* button : Plan().window()->findChildren<QToolButton*>()) {
    if (!button->isVisible() || button->text() != caption) continue;
    SendClick(*button, OpenPlace(*button, button->rect(), caption), Qt::LeftButton);
    return true;
  }
  return false;
}

void WindowsStage::PressOnPlan(PagePoint from, PagePoint to) {
  auto* area = qobject_cast<QAbstractScrollArea*>(&Plan());
  QWidget& sheet = area == nullptr ? Plan() : *area->viewport();
  // Alt, since a scenario means the very points and not what lies near them.
  SendPress(sheet, keeper_->PlanPlace(from), Qt::LeftButton, Qt::AltModifier);
  const QPointF end = keeper_->PlanPlace(to);
  if (from.x != to.x || from.y != to.y) SendMove(sheet, end, Qt::LeftButton, Qt::AltModifier);
  SendRelease(sheet, end, Qt::LeftButton, Qt::AltModifier);
}

void WindowsStage::PlanMode(int mode) {
  static const QString captions[] = {QStringLiteral("Move"),    QStringLiteral("Measure"),
                                     QStringLiteral("Count"),   QStringLiteral("Polyline"),
                                     QStringLiteral("Area"),    QStringLiteral("Rectangle"),
                                     QStringLiteral("Cut-out"), QStringLiteral("Perimeter")};
  if (mode >= 0 && mode < static_cast<int>(std::size(captions)) && ClickTool(captions[mode]))
    return;
  GetDesk().Dispatch([&] { played_->Viewer().PickTool(static_cast<PlanTool>(mode)); });
}

void WindowsStage::PlanLine(PagePoint from, PagePoint to) {
  Plan();
  TakeTool(static_cast<int>(PlanTool::Measuring));
  if (played_->Viewer().LineWork().active) PlanKey({tamo::PlanKey::Escape});
  PressOnPlan(from, to);
  // A press without a way is the first point of a line; the second ends it.
  if (played_->Viewer().LineWork().active) PressOnPlan(to, to);
}

void WindowsStage::PlanCircle(PagePoint at) {
  Plan();
  TakeTool(static_cast<int>(PlanTool::Counting));
  PressOnPlan(at, at);
}

void WindowsStage::PlanPress(PagePoint at) {
  Plan();
  PressOnPlan(at, at);
}

void WindowsStage::PlanDrag(PagePoint from, PagePoint to) {
  Plan();
  PressOnPlan(from, to);
}

void WindowsStage::PlanKey(const PlanStroke& stroke) {
  static const std::pair<tamo::PlanKey, Qt::Key> keys[] = {
      {tamo::PlanKey::Left, Qt::Key_Left},
      {tamo::PlanKey::Right, Qt::Key_Right},
      {tamo::PlanKey::Up, Qt::Key_Up},
      {tamo::PlanKey::Down, Qt::Key_Down},
      {tamo::PlanKey::Space, Qt::Key_Space},
      {tamo::PlanKey::Enter, Qt::Key_Return},
      {tamo::PlanKey::Escape, Qt::Key_Escape},
      {tamo::PlanKey::Backspace, Qt::Key_Backspace},
      {tamo::PlanKey::Undo, Qt::Key_Z},
      {tamo::PlanKey::Redo, Qt::Key_Y},
      {tamo::PlanKey::Arc, Qt::Key_B},
      {tamo::PlanKey::Snap, Qt::Key_S},
      {tamo::PlanKey::NextSnap, Qt::Key_Tab},
      {tamo::PlanKey::Yes, Qt::Key_Y},
      {tamo::PlanKey::No, Qt::Key_N},
      {tamo::PlanKey::All, Qt::Key_A},
      {tamo::PlanKey::MarkBefore, Qt::Key_P},
      {tamo::PlanKey::Delete, Qt::Key_Delete},
      {tamo::PlanKey::Compare, Qt::Key_D},
      {tamo::PlanKey::TwoPoints, Qt::Key_2},
      {tamo::PlanKey::Layer, Qt::Key_O},
      {tamo::PlanKey::SwapSides, Qt::Key_X},
      {tamo::PlanKey::PairNext, Qt::Key_PageDown},
      {tamo::PlanKey::PairBefore, Qt::Key_PageUp}};
  QWidget& plan = Plan();
  plan.setFocus(Qt::ShortcutFocusReason);
  Settle();
  const bool named = stroke.key == tamo::PlanKey::Undo || stroke.key == tamo::PlanKey::Redo;
  Qt::KeyboardModifiers held = Qt::NoModifier;
  if (stroke.shift) held |= Qt::ShiftModifier;
  if (stroke.ctrl || named) held |= Qt::ControlModifier;
  for (const auto& [key, code] : keys) {
    if (key == stroke.key) QTest::keyClick(&plan, code, held);
  }
  FinishSearch();
}

// The wheel and the mouse move whole pixels; a scenario means points.
void WindowsStage::PlanScroll(double dx, double dy) {
  Plan();
  GetDesk().Dispatch([&] { played_->Viewer().ScrollBy(dx, dy); });
}

void WindowsStage::PlanPage(int page) {
  Plan();
  GetDesk().Dispatch([&] { played_->Viewer().TurnPage(page); });
}

// A box may reach beyond what the window shows of the sheet.
void WindowsStage::PlanBox(PagePoint from, PagePoint to) {
  Plan();
  PdfDraw& viewer = played_->Viewer();
  GetDesk().Dispatch([&] { viewer.Box().Draw(viewer.Page(), from, to); });
  FinishSearch();
}

// A symbol is looked for aside; a person goes on when it is found.
void WindowsStage::FinishSearch() {
  GetDesk().Dispatch([&] { played_->Viewer().Same().Finish(kSearchPatience); });
}

// Each point is clicked, Enter ends.
void WindowsStage::PlanOutline(PlanTool tool, const std::vector<PagePoint>& points) {
  Plan();
  TakeTool(static_cast<int>(tool));
  if (played_->Viewer().OutlineInWork()) PlanKey({tamo::PlanKey::Escape});
  for (const PagePoint at : points) PressOnPlan(at, at);
  if (played_->Viewer().OutlineInWork()) PlanKey({tamo::PlanKey::Enter});
}

// On a platform without a screen a menu that closes leaves no window active; a window system gives
// that back to the window that had it.
void WindowsStage::GiveBackActivation() {
  const QWidget* now = QApplication::activeWindow();
  if (now != nullptr && now->isVisible() && now->windowType() != Qt::Popup) return;
  const Form* active = GetDesk().Active();
  if (active == nullptr || QApplication::activePopupWidget() != nullptr) return;
  QWidget* window = keeper_->WindowOf(*active);
  if (window == nullptr || !window->isVisible() || window->isActiveWindow()) return;
  window->activateWindow();
  Settle();
}

// The windows follow the forms by themselves; only what the window system reports late gets a
// second look.
// The offer under a field, as it stands on the screen.
QString WindowsStage::OfferDifference() const {
  QStringList shown;
  if (const SuggestionView* offer = keeper_->Offer(); offer != nullptr && offer->isVisible()) {
    for (int row = 0; row < offer->Names().count(); ++row)
      shown += offer->Names().item(row)->text();
  }
  if (shown == played_->SuggestedNames()) return {};
  return QStringLiteral("the suggestions differ on the screen: %1")
      .arg(shown.join(QStringLiteral("; ")));
}

QString WindowsStage::Difference(bool front) {
  Settle();
  const auto difference = [&] {
    if (front) GiveBackActivation();
    const QString found = FirstDifference(*keeper_, GetDesk(), played_->Notice(), front);
    return found.isEmpty() ? OfferDifference() : found;
  };
  if (difference().isEmpty()) return {};
  QTest::qWait(kLateReport);
  return difference();
}

bool WindowsStage::SavePicture(Form& form, const QString& path) {
  QWidget& window = GoTo(form);
  Settle();
  window.grab();  // what it shows is asked for while it is painted
  played_->WaitForPictures();
  QTest::qWait(kLateReport);
  return window.grab().save(path, "PNG");
}

}  // namespace

std::unique_ptr<Stage> MakeWindowsStage() {
  return std::make_unique<WindowsStage>();
}

}  // namespace tamo::player
