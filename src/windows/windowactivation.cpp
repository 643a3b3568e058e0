#include "windows/windowactivation.h"

#include <utility>

namespace tamo {
namespace {

constexpr int kActivationWait = 1000;  // milliseconds in which a window system answers a request
constexpr int kActivationDelay = 30;   // a click that brings a window to the front comes in this

}  // namespace

WindowActivation::WindowActivation(Desk& desk) : desk_(desk) {
  reportTimer_.setSingleShot(true);
  reportTimer_.setInterval(kActivationDelay);
  QObject::connect(&reportTimer_, &QTimer::timeout, &reportTimer_, [this] { TellDesk(); });
}

Form* WindowActivation::ToRaise(bool shownBehind) {
  if (desk_.Active() == activated_ && !shownBehind) return nullptr;
  return activated_ = desk_.Active();
}

void WindowActivation::Raise(FormWindow& window, bool shownBehind) {
  window.raise();
  if (window.isActiveWindow() && !shownBehind) return;
  asked_ = &window;
  askedSince_.start();
  window.activateWindow();
}

void WindowActivation::Activated(FormWindow& window, bool syncing) {
  if (!asked_.isNull() && askedSince_.elapsed() < kActivationWait) {
    if (asked_ == &window) asked_.clear();
    return;
  }
  if (&window.GetForm() == desk_.Active()) {
    // It is in front after all: another one that came before was only passing, as a window just
    // shown is.
    reported_ = nullptr;
    reportTimer_.stop();
    return;
  }
  if (syncing) return;
  reported_ = &window.GetForm();
  activeThen_ = desk_.Active();
  reportTimer_.start();
}

void WindowActivation::TellDesk() {
  reportTimer_.stop();
  if (desk_.InEvent()) {
    // A box is up inside an event; what was reported is still true behind it, or it is not.
    if (reported_ != nullptr) reportTimer_.start();
    return;
  }
  Form* form = std::exchange(reported_, nullptr);
  if (form == nullptr || desk_.Active() != activeThen_ || desk_.Active() == form) return;
  desk_.UserActivate(*form);
}

}  // namespace tamo
