#include "pricing/ratiochain.h"

#include "common/chain.h"
#include "common/numbers.h"

namespace tamo {

RatioChain::RatioChain(const Kit& kit, MaterialControls& controls, MaterialInWork& material,
                       const OrderedList& rows)
    : kit_(kit), c_(controls), material_(material), rows_(rows) {
  OnEnter(
      c_.UPO, Keys::Number, [this] { kit_.desk.Focus(c_.MnhrPO); },
      [this] { material_.TurnRatio(); });
  OnFocusSelectAll(c_.UPO);
  OnEnter(c_.MnhrPO, Keys::Number, [this] { EnterMnhrPO(); });
  OnFocusSelectAll(c_.MnhrPO);
  c_.MnhrPO.onLostFocus = [this] { LeaveMnhrPO(); };
}

bool RatioChain::HasNoTagYet() const {
  return rows_.Count() < kMnhrTagRow;
}

// A number of 0, or none, can't be left by Enter.
void RatioChain::EnterMnhrPO() {
  if (!c_.MnhrPO.Empty()) {
    kit_.desk.Focus(c_.Waste);
    if (Value(c_.MnhrPO.Text()) == 0) kit_.desk.Focus(c_.MnhrPO);
    return;
  }
  if (!HasNoTagYet()) material_.TurnLabor();
  material_.prompts.SetUpoUpm(material_.directions);
  kit_.desk.Focus(c_.Waste);
  kit_.desk.Focus(c_.MnhrPO);
}

// The first material of a system has no tag to turn: its prompts turn when the empty field is left,
// and the focus comes back.
void RatioChain::LeaveMnhrPO() {
  if (!c_.MnhrPO.Empty() || !HasNoTagYet()) return;
  material_.TurnLabor();
  if (c_.Waste.Usable()) kit_.desk.Focus(c_.Waste);
  kit_.desk.Focus(c_.MnhrPO);
}

}  // namespace tamo
