#pragma once

#include <QString>

namespace tamo {

// What the versions need of the forms that write the open bid.
class BidChanger {
 public:
  virtual ~BidChanger() = default;
  // Whether the open bid may be changed; otherwise the estimator has been told why not.
  virtual bool MayChange() = 0;
  // What waits in a form is saved, and what stands in the forms is forgotten.
  virtual void LeaveForms() = 0;
  // The files of the open bid are others now.
  virtual void ReadAgain() = 0;
  // The project list has another line.
  virtual void ReadProjectList() = 0;
};

}  // namespace tamo
