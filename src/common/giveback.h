#pragma once

#include <exception>
#include <thread>
#include <utility>

namespace tamo {

// Destroys `memory` on a thread of its own: to give hundreds of megabytes back takes longer than a
// window may stand still. Only for what refers to nothing else. Without a thread it is done here.
template <typename T>
void GiveBackAside(T memory) {
  try {
    std::thread([held = std::move(memory)]() mutable { T gone(std::move(held)); }).detach();
  } catch (const std::exception&) {
  }
}

}  // namespace tamo
