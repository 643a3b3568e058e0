#include <algorithm>
#include <cstdio>
#include <new>

#include "common/desk.h"
#include "common/failure.h"
#include "common/paths.h"

// Where events enter the forms.

namespace tamo {

void Desk::Dispatch(const std::function<void()>& event) {
  struct Depth {
    int& depth;
    explicit Depth(int& d) : depth(d) { ++depth; }
    ~Depth() { --depth; }
  };
  {
    const Depth guard(depth_);
    const int moves = moves_;
    Form* const leaving = leaving_;
    try {
      event();
    } catch (const RunTimeFailure& failure) {
      moves_ = moves;
      leaving_ = leaving;
      messages_.Tell(failure.text);
    } catch (const std::bad_alloc&) {
      moves_ = moves;
      leaving_ = leaving;
      messages_.Tell(QStringLiteral(
          "There is not enough memory for this. Close other programs, or take less at once."));
    }
  }
  if (depth_ == 0 && onRest) onRest();
  if (depth_ == 0 && onSettled) onSettled();
}

bool Desk::HandleKey(Control& control, Key key) {
  bool done = false;
  Dispatch([&] {
    if (control.Owner().onKeyPreview) control.Owner().onKeyPreview(key);
    if (!key.dropped && control.onKey) control.onKey(key);
    done = key.dropped;
  });
  return done;
}

namespace {

// Escape puts away what popped up under the field and changes nothing else.
void HideDropLists(TextField& field) {
  for (Control* control : field.Owner().Controls()) {
    auto* list = dynamic_cast<OrderedList*>(control);
    if (list != nullptr && list->dropsFrom == &field) list->Hide();
  }
}

void EditWithKey(TextField& field, const Key& key) {
  switch (key.name) {
    case Key::Name::Character:
    case Key::Name::Space:
      field.ReplaceSelection(QString(key.character));
      break;
    case Key::Name::Backspace:
      field.DeleteBackward();
      break;
    case Key::Name::Delete:
      field.DeleteForward();
      break;
    case Key::Name::Enter:
    case Key::Name::LineFeed:
      if (field.multiLine) field.ReplaceSelection(QStringLiteral("\r\n"));
      break;
    case Key::Name::Escape:
      HideDropLists(field);
      break;
    default:
      break;
  }
}

void MoveInList(OrderedList& list, const Key& key) {
  if (list.Empty()) return;
  if (key.Is(Key::Name::Down)) list.SetIndex(std::min(list.Index() + 1, list.Count() - 1));
  if (key.Is(Key::Name::Up)) list.SetIndex(std::max(list.Index() - 1, 0));
}

}  // namespace

void Desk::PressKey(Control& control, Key key) {
  // No chain of fields ever sees a tab: it only walks.
  if (key.Is(Key::Name::Tab) || key.Is(Key::Name::BackTab)) {
    MoveFocus(key.Is(Key::Name::Tab));
    return;
  }
  if (TakenFirst(control, key)) return;
  if (key.Is(Key::Name::End)) return MoveCaretToEnd(control);
  if (HandleKey(control, key)) return;
  Dispatch([&] {
    if (auto* field = dynamic_cast<TextField*>(&control)) {
      const QString before = field->Text();
      EditWithKey(*field, key);
      if (onEdited && field->Text() != before) onEdited(*field);
    } else if (auto* list = dynamic_cast<OrderedList*>(&control)) {
      auto* checks = dynamic_cast<CheckList*>(list);
      if (checks != nullptr && key.Is(Key::Name::Space) && list->Index() >= 0) {
        checks->TickByUser(list->Index());
      } else {
        MoveInList(*list, key);
      }
    } else if (key.Is(Key::Name::Space) ||
               (key.IsEnter() && (dynamic_cast<Button*>(&control) != nullptr ||
                                  dynamic_cast<Swatch*>(&control) != nullptr))) {
      ClickInto(control);
    }
  });
}

void Desk::TypeText(Control& control, const QString& text) {
  Control* target = &control;
  for (const QChar c : text) {
    PressKey(*target, Key::Typed(c));
    if (Control* now = Focused()) target = now;
  }
}

bool Desk::TakenFirst(Control& control, const Key& key) {
  bool taken = false;
  if (onKeyFirst) Dispatch([&] { taken = onKeyFirst(control, key); });
  return taken;
}

void Desk::MoveCaretToEnd(Control& control) {
  auto* field = dynamic_cast<TextField*>(&control);
  if (field == nullptr) return;
  Dispatch([field] { field->Select(static_cast<int>(field->Text().size()), 0); });
}

void Desk::Paste(TextField& field, const QString& text) {
  Dispatch([&] {
    field.ReplaceSelection(text);
    if (onEdited) onEdited(field);
  });
}

void Desk::EditedByUser(TextField& field, const QString& text, int caret) {
  Dispatch([&] {
    field.SetByUser(text, caret);
    if (onEdited) onEdited(field);
  });
}

void Desk::UserFocus(Control& control) {
  Dispatch([&] { Focus(control); });
}

void Desk::UserActivate(Form& form) {
  Dispatch([&] {
    if (form.Visible()) Activate(form, true);
  });
}

void Desk::ClickInto(Control& control) {
  Dispatch([&] {
    if (control.takesFocus) Focus(control);
    if (auto* box = dynamic_cast<CheckBox*>(&control)) box->SetValue(box->Value() == 0 ? 1 : 0);
    if (auto* option = dynamic_cast<Option*>(&control)) option->SetSelected(true);
    if (control.onClick) control.onClick();
  });
}

void Desk::DoubleClick(Control& control) {
  Dispatch([&] {
    if (control.takesFocus) Focus(control);
    if (control.onDoubleClick) control.onDoubleClick();
  });
}

void Desk::RightClick(Control& control) {
  Dispatch([&] {
    if (control.takesFocus) Focus(control);
    if (control.onRightClick) control.onRightClick();
  });
}

void Desk::ClickRow(OrderedList& list, int row) {
  Dispatch([&] {
    if (list.takesFocus) Focus(list);
    list.ClickRow(row);
    if (list.onClick) list.onClick();
  });
}

void Desk::DoubleClickRow(OrderedList& list, int row) {
  Dispatch([&] {
    if (list.takesFocus) Focus(list);
    list.ClickRow(row);
    if (list.onDoubleClick) list.onDoubleClick();
  });
}

void Desk::RightClickRow(OrderedList& list, int row) {
  Dispatch([&] {
    if (list.takesFocus) Focus(list);
    list.SetIndex(row);
    if (list.onRightClick) list.onRightClick();
  });
}

void Desk::TickRow(CheckList& list, int row) {
  Dispatch([&] {
    if (list.takesFocus) Focus(list);
    list.TickByUser(row);
  });
}

void Desk::ScrollTo(OrderedList& list, int row) {
  Dispatch([&] {
    list.SetTop(row);
    if (list.onUserScroll) list.onUserScroll();
  });
}

void Desk::ChooseMenu(MenuEntry& entry) {
  Dispatch([&] {
    entry.Owner().openPopup = nullptr;
    if (entry.Choosable() && entry.onClick) entry.onClick();
  });
}

void Desk::CloseBox(Form& form) {
  Dispatch([&] {
    if (form.onClose && !form.onClose()) return;
    Hide(form);
  });
}

void Desk::Pick(FileBrowser& browser, const QString& path, bool twice) {
  Dispatch([&] {
    if (browser.GetKind() == FileBrowser::Kind::File) {
      const QString folder = FolderOf(path);
      if (!folder.isEmpty()) browser.SetFolder(folder);
      browser.SetFile(FileNameOf(path));
    } else {
      browser.SetFolder(path);
    }
    if (browser.onPick) browser.onPick();
    if (twice && browser.onDoublePick) browser.onDoublePick();
  });
}

namespace {

// Whatever can be clicked can be reached without a mouse. A swatch that only shows a colour is
// none.
bool IsTabStop(const Control& control) {
  if (!control.inTabOrder) return false;
  if (dynamic_cast<const OrderedList*>(&control) != nullptr) return control.takesFocus;
  if (dynamic_cast<const Swatch*>(&control) != nullptr) return static_cast<bool>(control.onClick);
  return true;
}

}  // namespace

void Desk::MoveFocus(bool forward) {
  Dispatch([&] {
    if (active_ == nullptr) return;
    std::vector<Control*> stops;
    for (Control* control : active_->controls_) {
      if (IsTabStop(*control) && (control->Usable() || control == focused_))
        stops.push_back(control);
    }
    if (stops.empty()) return;
    const auto here = std::find(stops.begin(), stops.end(), focused_);
    const auto count = static_cast<long>(stops.size());
    const long at = here == stops.end() ? (forward ? -1 : 0) : here - stops.begin();
    Focus(*stops[static_cast<size_t>((at + (forward ? 1 : count - 1)) % count)]);
  });
}

}  // namespace tamo
