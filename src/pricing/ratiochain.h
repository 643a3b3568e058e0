#pragma once

#include "pricing/materialinwork.h"

namespace tamo {

// UPO and MnhrPO, the two conversion numbers of a material: Enter in the empty field turns its
// number round, Enter in a filled one leads on.
class RatioChain {
 public:
  // All of it outlives this.
  RatioChain(const Kit& kit, MaterialControls& controls, MaterialInWork& material,
             const OrderedList& rows);

 private:
  void EnterMnhrPO();
  void LeaveMnhrPO();
  bool HasNoTagYet() const;

  const Kit kit_;
  MaterialControls& c_;
  MaterialInWork& material_;
  const OrderedList& rows_;  // of the system
};

}  // namespace tamo
