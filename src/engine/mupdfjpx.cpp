#include <mupdf/fitz.h>

#include <algorithm>

#include "engine/mupdfcontexts.h"

// The decoder of JPEG 2000 takes its memory past the engine, as much as the picture's head says. So
// the head is read first: every call of the engine's own function comes here (a link option), and a
// picture for which the engine's memory would not do is refused. Either failure is a minor one, so
// that the rest of the page is read.

namespace {

constexpr int kBytesOfASample = 5;

unsigned NumberAt(const unsigned char* bytes, int count) {
  unsigned number = 0;
  for (int i = 0; i < count; ++i) number = number << 8 | bytes[i];
  return number;
}

// Samples of the picture as its size marker tells; 0 when there is none.
double SamplesOf(const unsigned char* data, size_t size) {
  constexpr unsigned char kStart[] = {0xff, 0x4f, 0xff, 0x51};
  const unsigned char* end = data + size;
  const unsigned char* at = std::search(data, end, std::begin(kStart), std::end(kStart));
  if (end - at < 42) return 0;
  const double width = double(NumberAt(at + 8, 4)) - NumberAt(at + 16, 4);
  const double height = double(NumberAt(at + 12, 4)) - NumberAt(at + 20, 4);
  return std::max(width, 0.0) * std::max(height, 0.0) * NumberAt(at + 40, 2);
}

}  // namespace

// The linker gives the engine's function these names (--wrap).
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {

fz_pixmap* __real_fz_load_jpx(fz_context* context, const unsigned char* data, size_t size,
                              fz_colorspace* space);

fz_pixmap* __wrap_fz_load_jpx(fz_context* context, const unsigned char* data, size_t size,
                              fz_colorspace* space) {
  const double bytes = SamplesOf(data, size) * kBytesOfASample;
  if (!tamo::MuPdfContexts::Reserve(bytes)) {
    fz_warn(context, "jpx: too large");
    fz_throw(context, FZ_ERROR_MINOR, "the picture is too large");
  }
  fz_pixmap* pixmap = nullptr;
  fz_var(pixmap);
  fz_try(context) pixmap = __real_fz_load_jpx(context, data, size, space);
  fz_always(context) tamo::MuPdfContexts::Release(bytes);
  fz_catch(context) {
    fz_warn(context, "jpx: not decoded");
    fz_throw(context, FZ_ERROR_MINOR, "the picture can't be decoded");
  }
  return pixmap;
}

}  // extern "C"
// NOLINTEND(bugprone-reserved-identifier)
