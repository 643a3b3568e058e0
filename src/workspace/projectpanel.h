#pragma once

#include <array>

#include "common/form.h"

namespace tamo {

// The fields of the main form: the record of the open project, and the list to open one from. Enter
// walks the fields in a ring; a line break of the notes is Ctrl+Enter.
struct ProjectPanel {
  explicit ProjectPanel(Form& owner);

  Form& form;
  Frame JobNFOFrame{form, "JobNFOFrame"};
  TextField JobName{form, "JobName"};
  TextField BidDate{form, "BidDate"};
  TextField Addenda{form, "Addenda"};
  TextField Phase{form, "Phase"};
  TextField BidItems{form, "BidItems"};
  TextField Inclusions{form, "Inclusions"};
  TextField Exclusions{form, "Exclusions"};
  TextField Architect{form, "Architect"};
  TextField Notes{form, "Notes"};
  Label NumberMissing{form, "NumberMissing"};  // of the estimator, while a project is made
  Button Command1{form, "Command1", "Exit Project Information"};
  OrderedList JobsList{form, "JobsList"};

  std::array<TextField*, 9> Fields() {
    return {&JobName,    &BidDate,    &Addenda,   &Phase, &BidItems,
            &Inclusions, &Exclusions, &Architect, &Notes};
  }

  // Nothing stands in the fields but the name: the record was not read, and nothing was entered.
  bool HoldsNameOnly();

 private:
  void BindChain();
};

}  // namespace tamo
