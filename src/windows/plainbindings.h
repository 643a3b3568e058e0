#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QSlider>

#include "windows/display.h"
#include "windows/swatchpatch.h"

namespace tamo {

class LabelBinding : public Binding {
 public:
  LabelBinding(Display& display, Label& label, QLabel& widget);
  void Apply() override;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  Label& label_;
  QLabel& text_;
};

// A push button, a check box or an option: the widget's click is the Desk's; its state is always
// the control's.
class ButtonBinding : public Binding {
 public:
  ButtonBinding(Display& display, Captioned& control, QAbstractButton& button);
  void Apply() override;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  Captioned& captioned_;
  QAbstractButton& button_;
};

class SwatchBinding : public Binding {
 public:
  SwatchBinding(Display& display, Swatch& swatch, SwatchPatch& patch);
  void Apply() override;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  Swatch& swatch_;
  SwatchPatch& patch_;
};

class BarBinding : public Binding {
 public:
  BarBinding(Display& display, ScrollBar& bar, QSlider& slider);
  void Apply() override;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  ScrollBar& bar_;
  QSlider& slider_;
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
