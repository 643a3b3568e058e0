#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

#include "common/key.h"
#include "common/textrows.h"

namespace tamo {

class Form;
class Frame;

// A control of a form as the form's rules see it: a name, states, handlers. It knows nothing of
// widgets; whoever displays it sets `observer`, which is told that something changed and looks for
// itself.
//
// Handlers are set once by the form. They run inside Desk::Dispatch. The form owns its controls and
// outlives no handler: handlers capture the form.
class Control {
 public:
  Control(Form& form, const QString& name);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const QString& Name() const { return name_; }
  Form& Owner() const { return form_; }
  QString FullName() const;  // FORM.NAME

  bool Shown() const { return shown_; }  // the control's own state, whatever its frame or window
  bool Enabled() const { return enabled_; }
  virtual void SetShown(bool shown);
  void Show() { SetShown(true); }
  void Hide() { SetShown(false); }
  void SetEnabled(bool enabled);
  // Shown, and so are all its frames; whether its form is visible is not asked.
  bool ShownWithFrames() const;
  bool Usable() const { return ShownWithFrames() && enabled_; }

  Frame* Container() const { return container_; }
  void PutInto(Frame& frame) { container_ = &frame; }

  QString Hover() const { return hover_; }
  void SetHover(const QString& text);

  bool HasFocus() const;

  // A control that never takes the focus when clicked: drop lists, labels, swatches, the buttons
  // beside the plan.
  bool takesFocus = true;
  // Tab comes here, except to a list that takes no focus: that one is walked from its field.
  bool inTabOrder = true;

  std::function<void(Key&)> onKey;
  std::function<void()> onGotFocus;
  std::function<void()> onLostFocus;
  std::function<void()> onClick;  // left button
  std::function<void()> onDoubleClick;
  std::function<void()> onRightClick;  // right button

  // Display side.
  std::function<void()> observer;
  void Changed();

 private:
  Form& form_;
  QString name_;
  bool shown_ = true;
  bool enabled_ = true;
  Frame* container_ = nullptr;
  QString hover_;
};

// A group of controls that is shown or hidden together.
class Frame : public Control {
 public:
  Frame(Form& form, const QString& name);
  const QString& Caption() const { return caption_; }
  void SetCaption(const QString& caption);

 private:
  QString caption_;
};

// A text field. Numbers stay text until they are computed with. Lines of a field of several lines
// end in CR LF.
class TextField : public Control {
 public:
  TextField(Form& form, const QString& name, int maxLength = 0);

  const QString& Text() const { return text_; }
  bool Empty() const { return text_.isEmpty(); }
  // By the program: raises onChange when the text is another one; puts the caret at its start.
  void SetText(const QString& text);
  void Clear() { SetText(QString()); }

  int MaxLength() const { return maxLength_; }  // 0: no limit. Holds for typing and pasting
  bool readOnly = false;                        // to the user
  void SetReadOnly(bool is);                    // the same, at any time
  // A comma typed between digits was dropped, and one or two digits follow its place: the number as
  // it was taken is another one than was meant. It is said beside the field.
  void CommaDropped();
  QString Beside() const;
  bool multiLine = false;

  int SelectionStart() const { return selectionStart_; }
  int SelectionLength() const { return selectionLength_; }
  QString SelectedText() const { return text_.mid(selectionStart_, selectionLength_); }
  void Select(int start, int length);
  void SelectAll() { Select(0, static_cast<int>(text_.size())); }
  void ClearSelection() { Select(selectionStart_ + selectionLength_, 0); }

  std::function<void()> onChange;  // the text became another one, by the program or the user

  // User side. ReplaceSelection types or pastes `typed` over the selection (cut to the length
  // limit; a line end of any kind becomes CR LF, or a blank in a field of one line); SetByUser
  // takes over what a widget's own editing made of the text.
  void ReplaceSelection(const QString& typed);
  void DeleteBackward();
  void DeleteForward();
  void SetByUser(const QString& text, int caret);

 private:
  void Take(const QString& text);

  QString text_;
  int maxLength_;
  int selectionStart_ = 0;
  int selectionLength_ = 0;
  int comma_ = -1;  // where one was dropped
};

// An ordered list of text rows with a selected index (-1 for none) and a top row. Never sorted.
//
// Setting the index to another value, by the program or the user, raises onSelect at once; setting
// the same index raises nothing. Clearing and removing rows raise nothing; the selection follows
// its row when rows are inserted or removed before it, and removing the selected row leaves none.
class OrderedList : public Control {
 public:
  OrderedList(Form& form, const QString& name);

  int Count() const { return rows_.Count(); }
  bool Empty() const { return rows_.Count() == 0; }
  QStringList Rows() const { return rows_.List(); }
  const ListRows& SharedRows() const { return rows_; }  // for reports of any length
  // Row `at`; a row that does not exist raises a RunTimeFailure (kSubscript).
  QString Row(int at) const;
  void SetRow(int at, const QString& text);
  void Add(const QString& text);
  void AddAll(const QStringList& rows);
  void Insert(int at, const QString& text);
  void Remove(int at);
  void Clear();
  void SetRows(const QStringList& rows);  // Clear, then AddAll
  void TakeRows(ListRows rows);           // the same, without a copy of the texts

  // Other rows, with the estimator where he is: the selected row stays selected if it still stands,
  // and nothing is raised.
  void Refill(const QStringList& rows);
  // Where row `at` of `before` stands now: -1 when it is gone. Of equal rows the one in its place.
  int RowAfter(const QStringList& before, int at) const;

  int Index() const { return index_; }
  // -1 selects none. Beyond the rows raises a RunTimeFailure.
  void SetIndex(int index);
  QString Selected() const { return index_ < 0 ? QString() : Row(index_); }

  int Top() const { return top_; }
  void SetTop(int row);  // kept within the rows

  int Find(const QString& text) const;         // exact; -1
  int FindAnyCase(const QString& text) const;  // upper-cased comparison; -1

  std::function<void()> onSelect;
  std::function<void()> onUserScroll;

  // A drop list: pops up under its field and takes no focus.
  TextField* dropsFrom = nullptr;

  // User side: a left click on a row (focus is the Desk's business).
  void ClickRow(int row);

  // Rows changed since the last call with that number; a display compares.
  unsigned RowsRevision() const { return rowsRevision_; }

 protected:
  virtual void RowInserted(int at);
  virtual void RowRemoved(int at);
  virtual void RowsCleared();
  virtual void RowsFilled();  // an empty list took over many rows at once
  void RowsChanged();

 private:
  void Check(int at) const;

  ListRows rows_;
  int index_ = -1;
  int top_ = 0;
  unsigned rowsRevision_ = 0;
};

// A list with a check box at each row.
class CheckList : public OrderedList {
 public:
  using OrderedList::OrderedList;
  bool Ticked(int row) const;
  void SetTicked(int row, bool ticked);  // by the program: raises nothing
  void TickByUser(int row);              // toggles the box, then raises onTick
  std::function<void(int row)> onTick;

 protected:
  void RowInserted(int at) override;
  void RowRemoved(int at) override;
  void RowsCleared() override;
  void RowsFilled() override;

 private:
  std::vector<bool> ticked_;
};

// Anything that shows a caption: label, button, menu entry.
class Captioned : public Control {
 public:
  Captioned(Form& form, const QString& name, const QString& caption);
  const QString& Caption() const { return caption_; }
  void SetCaption(const QString& caption);

 private:
  QString caption_;
};

class Label : public Captioned {
 public:
  Label(Form& form, const QString& name, const QString& caption = {});
};

class Button : public Captioned {
 public:
  Button(Form& form, const QString& name, const QString& caption);
};

class CheckBox : public Captioned {
 public:
  CheckBox(Form& form, const QString& name, const QString& caption);
  int Value() const { return value_; }  // 0 or 1
  void SetValue(int value);             // raises onChange when it is another one
  std::function<void()> onChange;

 private:
  int value_ = 0;
};

// One of a group of which at most one is selected. Selecting by the program clears the others and
// raises nothing; a user's click selects and then raises onClick (a click on the selected one
// raises it again).
class Option : public Captioned {
 public:
  Option(Form& form, const QString& name, const QString& caption, int group);
  bool Selected() const { return selected_; }
  void SetSelected(bool selected);
  int Group() const { return group_; }

 private:
  bool selected_ = false;
  int group_;
};

// A patch, or a sample line, painted in one colour.
class Swatch : public Captioned {
 public:
  Swatch(Form& form, const QString& name, const QString& caption = {});
  // Nine digits RRRGGGBBB; "" for the background of the frame.
  const QString& Colour() const { return colour_; }
  void SetColour(const QString& code);
  int Width() const { return width_; }  // of a sample line, pixels
  void SetWidth(int width);

 private:
  QString colour_;
  int width_ = 1;
};

// A bar that sets a small whole number.
class ScrollBar : public Control {
 public:
  ScrollBar(Form& form, const QString& name, int least, int most, int value);
  int Value() const { return value_; }
  void SetValue(int value);  // kept within its ends; raises onChange when it is another one
  int Least() const { return least_; }
  int Most() const { return most_; }
  std::function<void()> onChange;

 private:
  int least_;
  int most_;
  int value_;
};

// A folder list, a file list or a drive list. `folder` is what it stands on, without a separator at
// its end (but for a root); a file list also has the picked file's name and shows the files of its
// pattern.
class FileBrowser : public Control {
 public:
  enum class Kind { Drive, Folder, File };
  FileBrowser(Form& form, const QString& name, Kind kind, const QString& pattern = {});
  Kind GetKind() const { return kind_; }
  const QString& Pattern() const { return pattern_; }
  const QString& Folder() const { return folder_; }
  void SetFolder(const QString& folder);
  const QString& File() const { return file_; }
  void SetFile(const QString& name);

  std::function<void()> onPick;  // a folder or file was chosen; Folder() or File() is the new one
  std::function<void()> onDoublePick;  // a double click on it, after onPick

 private:
  Kind kind_;
  QString pattern_;
  QString folder_;
  QString file_;
};

// A menu entry or a pop-up entry. `parent` is the menu it hangs under, nullptr for one on the bar.
// A popup is a top entry that is not on the bar.
class MenuEntry : public Captioned {
 public:
  MenuEntry(Form& form, const QString& name, const QString& caption, MenuEntry* parent = nullptr,
            bool popup = false);
  MenuEntry* Parent() const { return parent_; }
  const std::vector<MenuEntry*>& Children() const { return children_; }
  bool IsPopup() const { return popup_; }
  // It and all the menus above it are shown and enabled: a user can choose it.
  bool Choosable() const;

 private:
  MenuEntry* parent_;
  std::vector<MenuEntry*> children_;
  bool popup_;
};

}  // namespace tamo
