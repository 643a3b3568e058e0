#pragma once

#include <mupdf/fitz.h>
#include <mupdf/pdf.h>

#include <atomic>

namespace tamo {

// The engine looks at the flag of a call from time to time; another thread may set it meanwhile.
inline void Stop(fz_cookie& cookie) {
  std::atomic_ref<int>(cookie.abort).store(1, std::memory_order_relaxed);
}
inline bool IsStopped(fz_cookie& cookie) {
  return std::atomic_ref<int>(cookie.abort).load(std::memory_order_relaxed) != 0;
}

// Runs what a page shows, but for the marks of this program: its contents, then the annotations of
// others, then the form fields. To be called inside a try of the engine.
void RunPage(fz_context* context, pdf_page* page, fz_device* device, fz_cookie* cookie);

}  // namespace tamo
