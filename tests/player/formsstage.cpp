#include "player/formsstage.h"

#include "common/desk.h"
#include "player/trouble.h"

namespace tamo::player {
namespace {

// A double click is a click first, which may put away what was clicked.
bool Reachable(const Control& control) {
  return control.Usable() && control.Owner().Visible();
}

}  // namespace

Key KeyFor(QChar c) {
  switch (c.unicode()) {
    case '\r':
      return Key::Named(Key::Name::Enter);
    case '\n':
      return Key::Named(Key::Name::LineFeed);
    case '\t':
      return Key::Named(Key::Name::Tab);
    case '\b':
      return Key::Named(Key::Name::Backspace);
    case 27:
      return Key::Named(Key::Name::Escape);
    case 127:
      return Key::Named(Key::Name::Delete);
    default:
      return Key::Typed(c);
  }
}

Control& FormsStage::Focused() const {
  Control* control = GetDesk().Focused();
  if (control == nullptr) Fail(QStringLiteral("nothing has the focus"));
  return *control;
}

TextField& FormsStage::FocusedField() const {
  auto* field = dynamic_cast<TextField*>(&Focused());
  if (field == nullptr)
    Fail(QStringLiteral("%1 has the focus, and no text can be entered there")
             .arg(Focused().FullName()));
  return *field;
}

// A click into another window of the program brings it to the front. On what takes the focus it
// goes straight there; otherwise the window comes first, with the focus where it was.
void FormsStage::GoTo(Control& control) {
  if (!control.takesFocus) GetDesk().UserActivate(control.Owner());
}

void FormsStage::ChooseMenu(MenuEntry& entry) {
  GetDesk().UserActivate(entry.Owner());
  GetDesk().ChooseMenu(entry);
}

void FormsStage::Focus(Control& control) {
  GetDesk().UserFocus(control);
}

void FormsStage::Type(const QString& text) {
  for (const QChar c : text) PressKey(KeyFor(c));
}

void FormsStage::PressKey(const Key& key) {
  GetDesk().PressKey(Focused(), key);
}

void FormsStage::Enter(const QString& text) {
  TextField& field = FocusedField();
  GetDesk().Dispatch([&] { field.SelectAll(); });
  if (!text.isEmpty()) {
    Type(text);
  } else if (!field.Empty()) {
    PressKey(Key::Named(Key::Name::Backspace));
  }
  PressKey(Key::Named(Key::Name::Enter));
}

void FormsStage::Paste(const QString& text) {
  GetDesk().Paste(FocusedField(), text);
}

// A click into the text of the field that has the focus already puts the caret there: at its end.
void FormsStage::Click(Control& control) {
  GoTo(control);
  auto* field = dynamic_cast<TextField*>(&control);
  const bool had = control.HasFocus();
  GetDesk().ClickInto(control);
  if (field == nullptr || !had || !control.HasFocus()) return;
  GetDesk().Dispatch([&] { field->Select(static_cast<int>(field->Text().size()), 0); });
}

void FormsStage::DoubleClick(Control& control) {
  Click(control);
  if (Reachable(control)) GetDesk().DoubleClick(control);
}

void FormsStage::RightClick(Control& control) {
  GoTo(control);
  GetDesk().RightClick(control);
}

void FormsStage::ClickNotice() {
  GetDesk().Dispatch([&] { played_->TrySavesAgain(); });
}

void FormsStage::SelectRow(OrderedList& list, int row) {
  GoTo(list);
  GetDesk().ClickRow(list, row);
}

void FormsStage::RightSelectRow(OrderedList& list, int row) {
  GoTo(list);
  GetDesk().RightClickRow(list, row);
}

void FormsStage::DoubleSelectRow(OrderedList& list, int row) {
  SelectRow(list, row);
  if (Reachable(list) && row < list.Count()) GetDesk().DoubleClickRow(list, row);
}

void FormsStage::TickRow(CheckList& list, int row) {
  GoTo(list);
  GetDesk().TickRow(list, row);
}

void FormsStage::ScrollTo(OrderedList& list, int row) {
  GoTo(list);
  GetDesk().ScrollTo(list, row);
}

void FormsStage::ClickSuggestion(int row) {
  played_->TakeSuggestion(row);
}

void FormsStage::Pick(FileBrowser& browser, const QString& path, bool twice) {
  GoTo(browser);
  GetDesk().Pick(browser, path, twice);
}

void FormsStage::CloseBox(Form& form) {
  GetDesk().CloseBox(form);
}

void FormsStage::GoToPlan() {
  Form* form = played_->FindForm(QStringLiteral("OST"));
  if (form == nullptr || !form->Visible())
    Fail(QStringLiteral("the plan can't be reached: the window of OST is not visible"));
  GetDesk().UserActivate(*form);
}

void FormsStage::PlanMode(int mode) {
  GoToPlan();
  GetDesk().Dispatch([&] { played_->Viewer().PickTool(static_cast<PlanTool>(mode)); });
}

void FormsStage::PlanLine(PagePoint from, PagePoint to) {
  GoToPlan();
  GetDesk().Dispatch([&] { played_->Viewer().DrawLine(from, to); });
}

void FormsStage::PlanCircle(PagePoint at) {
  GoToPlan();
  GetDesk().Dispatch([&] { played_->Viewer().PlaceCircle(at); });
}

void FormsStage::PlanPress(PagePoint at) {
  GoToPlan();
  GetDesk().Dispatch([&] {
    played_->Viewer().Press(at, false);
    played_->Viewer().Release(at, false);
  });
}

void FormsStage::PlanDrag(PagePoint from, PagePoint to) {
  GoToPlan();
  GetDesk().Dispatch([&] {
    played_->Viewer().Press(from, false);
    played_->Viewer().Move(to, false);
    played_->Viewer().Release(to, false);
  });
}

void FormsStage::PlanKey(const PlanStroke& stroke) {
  GoToPlan();
  Control* plan = GetDesk().Find(QStringLiteral("OST"))->Find(QStringLiteral("picPdfDraw"));
  if (plan != nullptr) GetDesk().UserFocus(*plan);
  GetDesk().Dispatch([&] {
    played_->Viewer().Key(stroke);
    played_->Viewer().Same().Finish(kSearchPatience);
  });
}

void FormsStage::PlanScroll(double dx, double dy) {
  GoToPlan();
  GetDesk().Dispatch([&] { played_->Viewer().ScrollBy(dx, dy); });
}

void FormsStage::PlanPage(int page) {
  GoToPlan();
  GetDesk().Dispatch([&] { played_->Viewer().TurnPage(page); });
}

void FormsStage::PlanBox(PagePoint from, PagePoint to) {
  GoToPlan();
  GetDesk().Dispatch([&] {
    PdfDraw& viewer = played_->Viewer();
    viewer.Box().Draw(viewer.Page(), from, to);
    viewer.Same().Finish(kSearchPatience);
  });
}

void FormsStage::PlanOutline(PlanTool tool, const std::vector<PagePoint>& points) {
  GoToPlan();
  GetDesk().Dispatch([&] { played_->Viewer().DrawOutline(tool, points); });
}

}  // namespace tamo::player
