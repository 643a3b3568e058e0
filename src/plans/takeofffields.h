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
  // Square feet for the line whose field waits: its height becomes 1 and its length the square
  // feet, and the length waits from then on. Those of a cut-out are negative: they go off the area
  // that stands there and was not entered yet. False when they were not taken; `words` says why, or
  // what was made of them.
  virtual bool TakeArea(Field waiting, const QString& squareFeet, QString& words) = 0;
  // Brings the form to the front without its activation routine, so that no list is read again and
  // the line in work stays.
  virtual void FocusOn(Field field) = 0;
};

}  // namespace tamo
