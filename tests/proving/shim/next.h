#pragma once

#include <dlfcn.h>

// The function that a program would have called without us.
#define TAMO_NEXT(name) \
  static const auto next = reinterpret_cast<decltype(&::name)>(::dlsym(RTLD_NEXT, #name))
