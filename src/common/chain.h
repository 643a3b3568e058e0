#pragma once

#include <functional>

#include "common/control.h"

namespace tamo {

// The chain kit: how a form leads an estimator from field to field with the Enter key. A form binds
// each of its fields once, in its constructor, and writes only what its step does:
//
//   OnEnter(How, Keys::Number, [this] { TakeHeight(); });
//   OnEnter(Room, Keys::FileName, [this] { EnterRoom(); }, [this] { Hide(); });
//   OnFocusSelectAll(Room, [this] { LoadRooms(); });
//   DropFrom(Room, RoomsList);
//   Room.onDoubleClick = [this] { Toggle(RoomsList); };
//
// All of these set handlers of the controls, which live as long as the form; a later call for the
// same handler replaces the earlier one.

// Which characters a field lets through; the others are thrown away as they are typed. Keys that
// are no characters (Backspace, the arrows ...) always pass.
enum class Keys {
  Any,
  FileName,     // anything but \ , " /
  Number,       // digits, the point, the minus sign
  WholeNumber,  // digits, the minus sign
  Digits
};
bool Passes(const Key& key, Keys keys);

// Enter is dropped (nothing is typed, no line is begun) and runs `step`. A field of several lines
// whose Enter both saves and begins a line has a handler of its own.
using Step = std::function<void()>;
void OnEnter(TextField& field, Step step);
void OnEnter(TextField& field, Keys keys, Step step);
// The same, but Enter in the empty field steps out of the loop: it runs `out` instead.
void OnEnter(TextField& field, Keys keys, Step step, Step out);

// The field takes any key, and its text is read as a number: a comma ends it, and where one or two
// digits follow, what is taken is said beside the field. Call it after OnEnter.
void SayTakenNumber(TextField& field);

// Any key, Enter too, first hides `list`; then the handler that the field had runs. Call it after
// OnEnter.
void HideOnKey(TextField& field, OrderedList& list);

// The field's whole text is selected when it gets the focus, so that typing replaces it; then
// `also` runs.
void OnFocusSelectAll(TextField& field, Step also = {});

// `list` pops up under `field`: hidden at first, it takes no focus and no Tab, the arrow keys in
// the field walk it, Escape puts it away. What picking a row does is the form's.
void DropFrom(TextField& field, OrderedList& list);
// A list that only holds rows, or that a command brings up: hidden, no focus, no Tab.
void KeepUnseen(OrderedList& list);

// Shows what is hidden and hides what is shown, as a click or a double click on a field does with
// its drop list.
void Toggle(Control& control);

}  // namespace tamo
