#include "windows/plainbindings.h"

#include <QEvent>
#include <QMouseEvent>

namespace tamo {

LabelBinding::LabelBinding(Display& display, Label& label, QLabel& widget)
    : Binding(display, label, widget), label_(label), text_(widget) {
  widget.setTextFormat(Qt::PlainText);
  if (label.onClick) widget.setCursor(Qt::PointingHandCursor);
}

void LabelBinding::Apply() {
  Binding::Apply();
  QString caption = label_.Caption();
  if (text_.buddy() != nullptr) caption.replace(QLatin1Char('&'), QLatin1String("&&"));
  if (text_.text() != caption) text_.setText(caption);
}

bool LabelBinding::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress && label_.onClick &&
      static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
    GetDesk().ClickInto(label_);
    return true;
  }
  return TakeCommon(event);
}

ButtonBinding::ButtonBinding(Display& display, Captioned& control, QAbstractButton& button)
    : Binding(display, control, button), captioned_(control), button_(button) {
  button.setFocusPolicy(control.takesFocus ? Qt::TabFocus : Qt::NoFocus);
  button.setAutoExclusive(false);
  connect(&button, &QAbstractButton::clicked, this, [this] {
    GetDisplay().MarkDirty(*this);
    GetDesk().ClickInto(captioned_);
  });
}

void ButtonBinding::Apply() {
  Binding::Apply();
  if (button_.text() != captioned_.Caption()) button_.setText(captioned_.Caption());
  bool on = false;
  if (const auto* box = dynamic_cast<const CheckBox*>(&captioned_)) on = box->Value() != 0;
  if (const auto* option = dynamic_cast<const Option*>(&captioned_)) on = option->Selected();
  if (button_.isCheckable() && button_.isChecked() != on) button_.setChecked(on);
}

bool ButtonBinding::eventFilter(QObject*, QEvent* event) {
  return TakeCommon(event);
}

SwatchBinding::SwatchBinding(Display& display, Swatch& swatch, SwatchPatch& patch)
    : Binding(display, swatch, patch), swatch_(swatch), patch_(patch) {
  patch.setFocusPolicy(swatch.takesFocus ? Qt::TabFocus : Qt::NoFocus);
  if (swatch.onClick) patch.setCursor(Qt::PointingHandCursor);
}

void SwatchBinding::Apply() {
  Binding::Apply();
  patch_.SetColour(swatch_.Colour());
  patch_.SetLineWidth(swatch_.Width());
  patch_.SetCaption(swatch_.Caption());
}

bool SwatchBinding::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress &&
      static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
    GetDesk().ClickInto(swatch_);
    return true;
  }
  return TakeCommon(event);
}

BarBinding::BarBinding(Display& display, ScrollBar& bar, QSlider& slider)
    : Binding(display, bar, slider), bar_(bar), slider_(slider) {
  slider.setFocusPolicy(bar.takesFocus ? Qt::TabFocus : Qt::NoFocus);
  slider.setRange(bar.Least(), bar.Most());
  connect(&slider, &QSlider::valueChanged, this, [this](int value) {
    if (GetDisplay().Syncing()) return;
    GetDesk().Dispatch([this, value] {
      if (bar_.takesFocus) GetDesk().Focus(bar_);
      bar_.SetValue(value);
    });
  });
}

void BarBinding::Apply() {
  Binding::Apply();
  if (slider_.value() != bar_.Value()) slider_.setValue(bar_.Value());
}

bool BarBinding::eventFilter(QObject*, QEvent* event) {
  return TakeCommon(event);
}

void FrameBinding::Apply() {
  Binding::Apply();
  const bool shown = GetControl().ShownWithFrames();
  if (shown == wasShown_) return;
  wasShown_ = shown;
  GetDisplay().MarkFormDirty(GetControl().Owner());
}

}  // namespace tamo
