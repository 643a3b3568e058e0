#pragma once

#include <QString>

namespace tamo {

// What the project panel asks of the working forms when a project comes or goes.
class ProjectFollowers {
 public:
  virtual ~ProjectFollowers() = default;
  virtual void InitPricing() = 0;         // makes the Pricing form ready at the start
  virtual void RefreshPricingList() = 0;  // the library's names are read again
  virtual void PrintReport() = 0;         // an open report follows, when it is set to
  virtual void ClearReports() = 0;        // empties the report and hides its form
  // The open project can only be read: the forms that would change it are put away, and the plan's
  // notes can't be typed into; or it can be written again.
  virtual void ShowReadOnly(bool readOnly) = 0;
  // The project is about to be deleted: it can be brought back for thirty days.
  virtual void KeepDeleted(const QString& id, const QString& name) = 0;
  virtual void ForgetProject() = 0;  // no project's adjustment is shown or counted in another
};

}  // namespace tamo
