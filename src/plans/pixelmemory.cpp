#include "plans/pixelmemory.h"

#include <sys/mman.h>

#include <cstdlib>

namespace tamo {
namespace {

constexpr size_t kLarge = size_t(1) << 18;  // bytes

}  // namespace

void* TakePixelMemory(size_t bytes) {
  if (bytes < kLarge) return std::calloc(1, bytes);
  void* memory = ::mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  return memory == MAP_FAILED ? nullptr : memory;
}

void GivePixelMemory(void* memory, size_t bytes) noexcept {
  if (bytes < kLarge) {
    std::free(memory);
  } else {
    ::munmap(memory, bytes);
  }
}

}  // namespace tamo
