#include "player/formsstage.h"

#include "common/desk.h"
#include "player/trouble.h"

namespace tamo::player {

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

// A click into another window of the program brings that window to the front first, also when what
// is clicked takes no focus.
void FormsStage::Click(Control& control) {
  if (!control.takesFocus) GetDesk().UserActivate(control.Owner());
  GetDesk().ClickInto(control);
}

void FormsStage::DoubleClick(Control& control) {
  if (!control.takesFocus) GetDesk().UserActivate(control.Owner());
  GetDesk().DoubleClick(control);
}

void FormsStage::RightClick(Control& control) {
  if (!control.takesFocus) GetDesk().UserActivate(control.Owner());
  GetDesk().RightClick(control);
}

void FormsStage::ClickNotice() {
  GetDesk().Dispatch([&] { played_->TrySavesAgain(); });
}

void FormsStage::SelectRow(OrderedList& list, int row) {
  if (!list.takesFocus) GetDesk().UserActivate(list.Owner());
  GetDesk().ClickRow(list, row);
}

void FormsStage::RightSelectRow(OrderedList& list, int row) {
  if (!list.takesFocus) GetDesk().UserActivate(list.Owner());
  GetDesk().RightClickRow(list, row);
}

void FormsStage::DoubleSelectRow(OrderedList& list, int row) {
  if (!list.takesFocus) GetDesk().UserActivate(list.Owner());
  GetDesk().DoubleClickRow(list, row);
}

void FormsStage::TickRow(CheckList& list, int row) {
  GetDesk().TickRow(list, row);
}

void FormsStage::ScrollTo(OrderedList& list, int row) {
  GetDesk().ScrollTo(list, row);
}

void FormsStage::Pick(FileBrowser& browser, const QString& path, bool twice) {
  GetDesk().UserActivate(browser.Owner());
  GetDesk().Pick(browser, path, twice);
}

void FormsStage::CloseBox(Form& form) {
  GetDesk().CloseBox(form);
}

void FormsStage::GoToPlan(bool press) {
  Form* form = played_->FindForm(QStringLiteral("OST"));
  if (form == nullptr || !form->Visible())
    Fail(QStringLiteral("the plan can't be reached: the window of OST is not visible"));
  GetDesk().UserActivate(*form);
  Control* plan = form->Find(QStringLiteral("picPdfDraw"));
  if (press && plan != nullptr) GetDesk().UserFocus(*plan);
}

void FormsStage::PlanMode(int mode) {
  GoToPlan(false);
  GetDesk().Dispatch([&] { played_->Viewer().PickTool(mode); });
}

void FormsStage::PlanLine(PagePoint from, PagePoint to) {
  GoToPlan(true);
  GetDesk().Dispatch([&] { played_->Viewer().DrawLine(from, to); });
}

void FormsStage::PlanCircle(PagePoint at) {
  GoToPlan(true);
  GetDesk().Dispatch([&] { played_->Viewer().PlaceCircle(at); });
}

void FormsStage::PlanPress(PagePoint at) {
  GoToPlan(true);
  GetDesk().Dispatch([&] {
    played_->Viewer().Press(at, false);
    played_->Viewer().Release(at, false);
  });
}

void FormsStage::PlanKey(const PlanStroke& stroke) {
  GoToPlan(true);
  GetDesk().Dispatch([&] { played_->Viewer().Key(stroke); });
}

void FormsStage::PlanScroll(double dx, double dy) {
  GoToPlan(false);
  GetDesk().Dispatch([&] { played_->Viewer().ScrollBy(dx, dy); });
}

void FormsStage::PlanPage(int page) {
  GoToPlan(false);
  GetDesk().Dispatch([&] { played_->Viewer().TurnPage(page); });
}

}  // namespace tamo::player
