#pragma once

#include <QString>

namespace tamo {

// What the takeoff asks of the plan while a quantity is entered.
class PlanTools {
 public:
  virtual ~PlanTools() = default;

  virtual void SetToolMode(int mode) = 0;  // 0 none, 1 measuring, 2 counting
  // The colour of a system for what is drawn next: nine digits RRRGGGBBB.
  virtual void SetPenColour(const QString& code) = 0;
  // The viewer's number for marks goes to 0 and its measuring unit's name to "feet".
  virtual void ResetMeasure() = 0;
  virtual void SaveIt() = 0;  // saves the marked plan
  virtual void ClearDistance() = 0;
  virtual void ReleaseMode() = 0;  // the text of the plan's Mode becomes "Released"
  virtual void DeleteKey() = 0;    // the plan's answer to the Delete key
  // The scale in force, for the eye, "" when none is set.
  virtual QString ScaleText() const = 0;
};

}  // namespace tamo
