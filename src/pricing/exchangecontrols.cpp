#include "pricing/exchangecontrols.h"

#include "common/chain.h"

namespace tamo {

ExchangeControls::ExchangeControls(Form& owner) : ControlGroup(owner) {
  PutAllInto(IEFrame, {&IELabel, &Drive1, &Dir1, &File1});
  IEFrame.Hide();
  KeepUnseen(CopySys);
}

}  // namespace tamo
