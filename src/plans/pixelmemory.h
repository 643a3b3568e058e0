#pragma once

#include <cstddef>
#include <cstdint>
#include <new>
#include <utility>
#include <vector>

namespace tamo {

// Memory for pictures, all zero. Large pieces come from the system and go back to it at once: a
// day of pictures that come and go on many threads leaves no holes behind. Null when there is none.
void* TakePixelMemory(size_t bytes);
void GivePixelMemory(void* memory, size_t bytes) noexcept;

template <typename T>
struct PixelAllocator {
  using value_type = T;
  PixelAllocator() = default;
  template <typename Other>
  PixelAllocator(const PixelAllocator<Other>& /*other*/) {}

  T* allocate(size_t count) {
    void* memory = TakePixelMemory(count * sizeof(T));
    if (memory == nullptr) throw std::bad_alloc();
    return static_cast<T*>(memory);
  }
  void deallocate(T* memory, size_t count) noexcept { GivePixelMemory(memory, count * sizeof(T)); }
  // What nobody gives a value is zero already.
  template <typename Element, typename... Values>
  void construct(Element* place, Values&&... values) {
    if constexpr (sizeof...(Values) > 0)
      ::new (static_cast<void*>(place)) Element(std::forward<Values>(values)...);
  }
  bool operator==(const PixelAllocator& /*other*/) const { return true; }
};

// Pixels as Picture has them.
using Pixels = std::vector<uint32_t, PixelAllocator<uint32_t>>;

}  // namespace tamo
