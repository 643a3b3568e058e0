#pragma once

#include "pricing/exchangecontrols.h"
#include "pricing/opensystem.h"
#include "pricing/pricingmenus.h"
#include "pricing/reportrefresh.h"
#include "pricing/vocabulary.h"

namespace tamo {

// What the chains of the price library work on; all of it outlives them.
struct PricingParts {
  SystemControls& system;
  MaterialControls& materials;
  LookControls& look;
  ExchangeControls& exchange;
  PricingMenus& menus;
  Vocabulary& vocabulary;
  SystemBlocks& blocks;
  MaterialInWork& material;
  LaborPrice& price;
  OpenSystem& open;
  ReportRefresh& refresh;
};

}  // namespace tamo
