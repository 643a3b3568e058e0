#pragma once

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>

#include "windows/browserview.h"
#include "windows/formwindow.h"
#include "windows/listbinding.h"
#include "windows/look.h"
#include "windows/swatchpatch.h"

namespace tamo {

class Program;
class PlanPictures;

// Makes the widgets of one form by the names of its controls, each bound to its control. A name
// that the form does not have gives a widget that stands alone, and is noted in
// FormWindow::missing. The widgets belong to the layout they are put into.
class Builder {
 public:
  Builder(FormWindow& window, Display& display, Program& program, PlanPictures* pictures);

  FormWindow& Window() { return window_; }
  Form& GetForm() { return window_.GetForm(); }
  Display& GetDisplay() { return display_; }
  Program& GetProgram() { return program_; }
  PlanPictures* Pictures() { return pictures_; }

  // `columns` is the width in characters; 0 takes all the width there is. `accessibleName` is the
  // name for a reader of screens where no caption stands before the field.
  QLineEdit* Field(const char* name, int columns = 0, const QString& accessibleName = {});
  QPlainTextEdit* LongField(const char* name, const QString& accessibleName);
  RowsView* List(const char* name, const QString& accessibleName, int columns, int rows);
  // A list that pops up under its field. The field must have been made before.
  RowsView* DropList(const char* name, const char* field);
  // A list that opens where the right click was.
  RowsView* PopList(const char* name, const QString& accessibleName, int columns);
  QPushButton* PushButton(const char* name);
  QCheckBox* Check(const char* name);
  QRadioButton* Choice(const char* name);
  SwatchPatch* Patch(const char* name);
  SwatchPatch* SampleLine(const char* name);
  QSlider* Bar(const char* name, const QString& accessibleName);
  BrowserView* Browser(const char* name, const QString& accessibleName);
  // The group of a frame's controls: an empty widget to lay them out in.
  QWidget* Group(const char* name);
  QFrame* Panel(const char* name);  // the same with a frame and a ground of its own

  // Labels of the form whose text changes.
  QLabel* Caption(const char* name);  // before a field
  QLabel* Prompt(const char* name);   // under a field
  QLabel* Text(const char* name);
  QLabel* Figure(const char* name);  // money of two decimals, whole on hover

  Control* Find(const char* name);
  // A control that is bound by hand.
  template <class Kind>
  Kind* Find(const char* name) {
    auto* control = dynamic_cast<Kind*>(Find(name));
    if (control == nullptr) window_.missing.append(QLatin1String(name));
    return control;
  }
  template <class Made, class... Arguments>
  void Bind(Arguments&&... arguments) {
    display_.Add(std::make_unique<Made>(display_, std::forward<Arguments>(arguments)...));
  }

 private:
  QLabel* LabelFor(const char* name);

  FormWindow& window_;
  Display& display_;
  Program& program_;
  PlanPictures* pictures_;
};

// Texts of a window that never change.
QLabel* FixedCaption(const QString& text);
QLabel* FixedPrompt(const QString& text);
QLabel* Section(const QString& text);  // a caption in semibold over a group
QFrame* Rule();                        // a thin line across
// The widget keeps its place while it is hidden, so that nothing jumps.
QWidget* KeepPlaceWhenHidden(QWidget* widget);

// The usual layouts: from top to bottom in `in`, its margins 0; from left to right, on its own or
// in `in`. Spacing and margins in pixels.
QVBoxLayout* ColumnIn(QWidget* in, int spacing = kGrid);
QHBoxLayout* NewRow(int spacing = kGrid);
QHBoxLayout* RowIn(QWidget* in, int spacing = kGrid);

// Captions in one right-aligned column, fields in the next, prompts under their fields.
class FieldColumn {
 public:
  explicit FieldColumn(QVBoxLayout& into);
  explicit FieldColumn(QWidget& in);
  QGridLayout& Grid() { return *grid_; }

  void Add(QLabel* caption, QWidget* field, QLabel* prompt = nullptr);
  int captionWidth = 0;  // of all captions, in pixels; 0 lets each column find its own

 private:
  void SetSpacing();
  QGridLayout* grid_;
  int row_ = 0;
};

}  // namespace tamo
