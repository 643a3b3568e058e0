#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QSlider>

#include "windows/display.h"
#include "windows/swatchpatch.h"

namespace tamo {

// A binding that knows the kinds of its control and its widget.
template <class ControlKind, class WidgetKind>
class BindingOf : public Binding {
 public:
  BindingOf(Display& display, ControlKind& control, WidgetKind& widget)
      : Binding(display, control, widget), own_(control), shown_(widget) {}

 protected:
  bool eventFilter(QObject*, QEvent* event) override { return TakeCommon(event); }

  ControlKind& own_;
  WidgetKind& shown_;
};

class LabelBinding : public BindingOf<Label, QLabel> {
 public:
  LabelBinding(Display& display, Label& label, QLabel& widget);
  void Apply() override;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
};

// A push button, a check box or an option: the widget's click is the Desk's; its state is always
// the control's.
class ButtonBinding : public BindingOf<Captioned, QAbstractButton> {
 public:
  ButtonBinding(Display& display, Captioned& control, QAbstractButton& button);
  void Apply() override;
};

class SwatchBinding : public BindingOf<Swatch, SwatchPatch> {
 public:
  SwatchBinding(Display& display, Swatch& swatch, SwatchPatch& patch);
  void Apply() override;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
};

class BarBinding : public BindingOf<ScrollBar, QSlider> {
 public:
  BarBinding(Display& display, ScrollBar& bar, QSlider& slider);
  void Apply() override;
};

// A group that is shown or hidden; what stands in it follows, wherever its widget is.
class FrameBinding : public Binding {
 public:
  using Binding::Binding;
  void Apply() override;

 private:
  bool wasShown_ = true;
};

}  // namespace tamo
