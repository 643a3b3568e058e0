#include "plans/mupdfshareddecoders.h"

#include <atomic>
#include <mutex>

namespace tamo {
namespace {

std::mutex decoding;
std::atomic<fz_image_get_pixmap_fn*> decode = nullptr;  // the engine's own, the same for all

fz_pixmap* DecodeAlone(fz_context* context, fz_image* image, fz_irect* part, int width, int height,
                       int* shrink) {
  fz_pixmap* pixmap = nullptr;
  fz_var(pixmap);
  decoding.lock();
  fz_try(context) pixmap = decode.load()(context, image, part, width, height, shrink);
  fz_always(context) decoding.unlock();
  fz_catch(context) fz_rethrow(context);
  return pixmap;
}

bool SharesDecoder(fz_context* context, fz_image* image) {
  fz_compressed_buffer* buffer = fz_compressed_image_buffer(context, image);
  return buffer != nullptr && buffer->params.type == FZ_IMAGE_JBIG2;
}

// A device that looks for pictures only.
void MeetImage(fz_context* context, fz_device* /*device*/, fz_image* image, fz_matrix /*place*/,
               float /*alpha*/, fz_color_params /*params*/) {
  GuardSharedDecoder(context, image);
}

void MeetMask(fz_context* context, fz_device* /*device*/, fz_image* image, fz_matrix /*place*/,
              fz_colorspace* /*space*/, const float* /*colour*/, float /*alpha*/,
              fz_color_params /*params*/) {
  GuardSharedDecoder(context, image);
}

void MeetClip(fz_context* context, fz_device* /*device*/, fz_image* image, fz_matrix /*place*/,
              fz_rect /*scissor*/) {
  GuardSharedDecoder(context, image);
}

void GuardLetters(fz_context* context, fz_device* device, const fz_text_span& span) {
  for (int i = 0; i < span.len; ++i) {
    if (span.items[i].gid < 0) continue;
    fz_run_t3_glyph(context, span.font, span.items[i].gid, fz_identity, device);
  }
}

}  // namespace

void GuardSharedDecoder(fz_context* context, fz_image* image) {
  if (image == nullptr) return;
  GuardSharedDecoder(context, image->mask);
  if (image->get_pixmap == DecodeAlone || !SharesDecoder(context, image)) return;
  decode = image->get_pixmap;
  image->get_pixmap = DecodeAlone;
}

void GuardSharedDecoders(fz_context* ctx, const fz_text* text) {
  fz_device* device = nullptr;
  fz_var(device);
  fz_try(ctx) {
    for (const fz_text_span* span = text->head; span != nullptr; span = span->next) {
      if (fz_font_t3_procs(ctx, span->font) == nullptr) continue;
      if (device == nullptr) {
        device = fz_new_device_of_size(ctx, sizeof(fz_device));
        device->fill_image = MeetImage;
        device->fill_image_mask = MeetMask;
        device->clip_image_mask = MeetClip;
      }
      GuardLetters(ctx, device, *span);
    }
    if (device != nullptr) fz_close_device(ctx, device);
  }
  fz_always(ctx) fz_drop_device(ctx, device);
  fz_catch(ctx) fz_rethrow(ctx);
}

}  // namespace tamo
