#pragma once

#include "common/desk.h"
#include "common/files.h"
#include "common/services.h"
#include "common/sharedfields.h"

namespace tamo {

// What every form is made with. All of it outlives the forms.
struct Kit {
  Desk& desk;
  Files& files;
  SharedFields& shared;
  const Platform& platform;
};

}  // namespace tamo
