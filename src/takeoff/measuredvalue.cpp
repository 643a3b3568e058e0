#include "takeoff/measuredvalue.h"

#include <utility>

#include "common/desk.h"
#include "common/numbers.h"

namespace tamo {

MeasuredValue::MeasuredValue(Form& form)
    : MeasuredText(form, QStringLiteral("MeasuredText")),
      TakeMeasured(form, QStringLiteral("TakeMeasured"), QStringLiteral("&Take It")),
      DropMeasured(form, QStringLiteral("DropMeasured"), QStringLiteral("D&rop It")),
      form_(form) {
  TakeMeasured.onClick = [this] { Take(); };
  DropMeasured.onClick = [this] {
    if (Waits()) waiting_.removeLast();
    Show();
  };
  Show();
}

void MeasuredValue::Into(TextField& field, const QString& text, const QString& lineInWork) {
  field.SetText(text);
  Entered(field);
  inFields_ += {&field, field.Text(), lineInWork, true};
}

void MeasuredValue::Entered(const TextField& field) {
  inFields_.removeIf([&](const Measure& measure) { return measure.field == &field; });
}

void MeasuredValue::Follow() {
  if (inFields_.isEmpty() || !form_.Visible()) return;
  const QList<Measure> inFields = std::exchange(inFields_, {});
  for (Measure measure : inFields) Follow(measure);
}

void MeasuredValue::Follow(Measure& measure) {
  TextField& field = *measure.field;
  const bool stands = !field.Empty() && GroupedValue(field.Text()) == GroupedValue(measure.text);
  if (stands && target(field) == measure.target) {
    measure.fresh = false;
    inFields_ += measure;
  } else if (stands || measure.fresh) {
    if (stands) field.Clear();
    waiting_ += measure;
    Show();
  }
}

void MeasuredValue::Forget() {
  inFields_.clear();
  waiting_.clear();
  Show();
}

// Into the line that is in work now: the estimator says that it belongs there.
void MeasuredValue::Take() {
  if (!Waits()) return;
  TextField& field = *waiting_.last().field;
  form_.GetDesk().Focus(field);
  const QString now = target(field);
  if (now.isEmpty() || !field.HasFocus()) {
    MeasuredText.SetCaption(QStringLiteral("%1 waits. Go to the line that it belongs to, then take "
                                           "it.")
                                .arg(waiting_.last().text));
    return;
  }
  Into(field, waiting_.takeLast().text, now);
  field.SelectAll();
  Show();
}

void MeasuredValue::Show() {
  for (Control* control :
       std::initializer_list<Control*>{&MeasuredText, &TakeMeasured, &DropMeasured})
    control->SetShown(Waits());
  if (!Waits()) return;
  const Measure& last = waiting_.last();
  QString text =
      last.target.isEmpty()
          ? QStringLiteral("%1 waits: no line was in work when it was measured.").arg(last.text)
          : QStringLiteral("%1 waits: it was measured for %2.").arg(last.text, last.target);
  if (waiting_.size() > 1) text += QStringLiteral(" (%1 measures wait.)").arg(waiting_.size());
  MeasuredText.SetCaption(text);
}

}  // namespace tamo
