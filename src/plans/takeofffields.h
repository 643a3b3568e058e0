#pragma once

#include <QString>

namespace tamo {

// The fields of the takeoff forms that wait for a measure from the plan.
class TakeoffFields {
 public:
  enum class Field {
    ELength,  // eLength of EstimateForm ("EL")
    Hite,     // Hite of EstimateForm ("EH")
    Length,   // Length of RFSForm ("RL")
    How       // How of RFSForm ("RH")
  };

  virtual ~TakeoffFields() = default;
  // The form on which the field stands is on the screen.
  virtual bool FormVisible(Field field) const = 0;
  // As if typed: the estimator still presses Enter in the field.
  virtual void SetText(Field field, const QString& text) = 0;
  // Brings the form to the front without its activation routine, so that no list is read again and
  // the line in work stays.
  virtual void FocusOn(Field field) = 0;
};

}  // namespace tamo
