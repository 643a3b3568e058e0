#include "windows/plainbindings.h"

#include <QEvent>
#include <QMouseEvent>

namespace tamo {
namespace {

bool IsLeftPress(const QEvent& event) {
  return event.type() == QEvent::MouseButtonPress &&
         static_cast<const QMouseEvent&>(event).button() == Qt::LeftButton;
}

void TakeTabFocus(QWidget& widget, const Control& control) {
  widget.setFocusPolicy(control.takesFocus ? Qt::TabFocus : Qt::NoFocus);
}

}  // namespace

LabelBinding::LabelBinding(Display& display, Label& label, QLabel& widget)
    : BindingOf(display, label, widget) {
  widget.setTextFormat(Qt::PlainText);
  if (label.onClick) widget.setCursor(Qt::PointingHandCursor);
}

void LabelBinding::Apply() {
  Binding::Apply();
  QString caption = own_.Caption();
  if (shown_.buddy() != nullptr) caption.replace(QLatin1Char('&'), QLatin1String("&&"));
  if (shown_.text() != caption) shown_.setText(caption);
}

bool LabelBinding::eventFilter(QObject*, QEvent* event) {
  if (!own_.onClick || !IsLeftPress(*event)) return TakeCommon(event);
  GetDesk().ClickInto(own_);
  return true;
}

ButtonBinding::ButtonBinding(Display& display, Captioned& control, QAbstractButton& button)
    : BindingOf(display, control, button) {
  TakeTabFocus(button, control);
  button.setAutoExclusive(false);
  connect(&button, &QAbstractButton::clicked, this, [this] {
    GetDisplay().MarkDirty(*this);
    GetDesk().ClickInto(own_);
  });
}

void ButtonBinding::Apply() {
  Binding::Apply();
  if (shown_.text() != own_.Caption()) shown_.setText(own_.Caption());
  bool on = false;
  if (const auto* box = dynamic_cast<const CheckBox*>(&own_)) on = box->Value() != 0;
  if (const auto* option = dynamic_cast<const Option*>(&own_)) on = option->Selected();
  if (shown_.isCheckable() && shown_.isChecked() != on) shown_.setChecked(on);
}

SwatchBinding::SwatchBinding(Display& display, Swatch& swatch, SwatchPatch& patch)
    : BindingOf(display, swatch, patch) {
  TakeTabFocus(patch, swatch);
  if (swatch.onClick) patch.setCursor(Qt::PointingHandCursor);
}

void SwatchBinding::Apply() {
  Binding::Apply();
  shown_.SetColour(own_.Colour());
  shown_.SetLineWidth(own_.Width());
  shown_.SetCaption(own_.Caption());
}

bool SwatchBinding::eventFilter(QObject*, QEvent* event) {
  if (!IsLeftPress(*event)) return TakeCommon(event);
  GetDesk().ClickInto(own_);
  return true;
}

BarBinding::BarBinding(Display& display, ScrollBar& bar, QSlider& slider)
    : BindingOf(display, bar, slider) {
  TakeTabFocus(slider, bar);
  slider.setRange(bar.Least(), bar.Most());
  connect(&slider, &QSlider::valueChanged, this, [this](int value) {
    if (GetDisplay().Syncing()) return;
    GetDesk().Dispatch([this, value] {
      if (own_.takesFocus) GetDesk().Focus(own_);
      own_.SetValue(value);
    });
  });
}

void BarBinding::Apply() {
  Binding::Apply();
  if (shown_.value() != own_.Value()) shown_.setValue(own_.Value());
}

void FrameBinding::Apply() {
  Binding::Apply();
  const bool shown = GetControl().ShownWithFrames();
  if (shown == wasShown_) return;
  wasShown_ = shown;
  GetDisplay().MarkFormDirty(GetControl().Owner());
}

}  // namespace tamo
