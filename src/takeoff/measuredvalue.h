#pragma once

#include <QList>
#include <QString>
#include <functional>

#include "common/control.h"
#include "common/form.h"

namespace tamo {

// A measure that the plan put into a field and that was not entered yet. It was meant for the line
// that the plan named then: when another line comes into work before it is entered, it leaves the
// field and waits, with that line's name, until the estimator takes it or drops it.
class MeasuredValue {
 public:
  // Its controls belong to `form`, which outlives this.
  explicit MeasuredValue(Form& form);

  Label MeasuredText;  // what waits, and for which line it was measured
  Button TakeMeasured;
  Button DropMeasured;

  // The plan puts `text` into `field`, for the line `target`; "" when none is in work.
  void Into(TextField& field, const QString& text, const QString& target);
  // What stands in the field was entered.
  void Entered(const TextField& field);
  // After each event while the form is shown.
  void Follow();
  void Forget();  // nothing waits any more
  bool Waits() const { return !waiting_.isEmpty(); }

  // The line into which the field would go now.
  std::function<QString(const TextField& field)> target;

 private:
  struct Measure {
    TextField* field = nullptr;
    QString text;
    QString target;
    bool fresh = false;  // put in by the event in work
  };
  void Follow(Measure& measure);
  void Take();
  void Show();

  Form& form_;
  QList<Measure> inFields_;  // one for each field at most
  QList<Measure> waiting_;
};

}  // namespace tamo
