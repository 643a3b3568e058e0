#pragma once

#include "windows/builder.h"

namespace tamo {

// What the windows of the two takeoff forms have in common.

// A caption, its field and the prompt under it.
struct TakeoffField {
  const char* caption;
  const char* field;
  int columns;
  const char* prompt;  // "" for none
};
// Two columns of fields, row by row: left, right, left, right ...
QGridLayout* TakeoffFields(Builder& builder, const std::vector<TakeoffField>& fields);

// The heads of the fixed columns and the list under them.
QWidget* TakeoffLines(Builder& builder, const char* list, const QString& accessibleName,
                      const QString& heads);

// What was entered for the line in work, in one row under the lines; also while its list is hidden.
QWidget* Tally(Builder& builder, const char* lengths);

// A measure that waits for the line it belongs to; nothing while none does.
QWidget* MeasureWaits(Builder& builder);

// The plan's scale and where the estimator stands.
void TakeoffStatus(Builder& builder);

}  // namespace tamo
