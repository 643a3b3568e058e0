#pragma once

#include "reports/reportsform.h"

namespace tamo {

// While it stands a report is being made and no other begins; however it ends, it is told.
class ReportsForm::Running {
 public:
  explicit Running(ReportsForm& form) : form_(form) { form_.running_ = true; }
  ~Running() {
    if (form_.onMade) form_.onMade(whole);
    form_.running_ = false;
  }
  Running(const Running&) = delete;
  Running& operator=(const Running&) = delete;

  bool whole = false;  // it came to its end

 private:
  ReportsForm& form_;
};

}  // namespace tamo
