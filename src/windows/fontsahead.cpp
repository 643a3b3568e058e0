#include "windows/fontsahead.h"

#include <QFontDatabase>
#include <QStringList>
#include <system_error>

#ifdef Q_OS_LINUX
#include <dlfcn.h>
#endif

namespace tamo {
namespace {

// Of the library that the toolkit asks, which stays out of sight behind it.
void ReadTheList() {
#ifdef Q_OS_LINUX
  using Init = int (*)();
  if (const auto init = reinterpret_cast<Init>(dlsym(RTLD_DEFAULT, "FcInit"))) init();
#endif
}

}  // namespace

FontsAhead::FontsAhead() {
  try {
    work_ = std::async(std::launch::async, [there = application_.get_future()]() mutable {
      ReadTheList();
      if (there.get()) QFontDatabase::families();
    });
  } catch (const std::system_error&) {
    // No thread to be had.
  }
}

void FontsAhead::GoOn() {
  application_.set_value(true);
  going_ = true;
}

void FontsAhead::Wait() {
  if (!work_.valid()) return;
  if (!going_) application_.set_value(false);
  work_.get();
}

}  // namespace tamo
