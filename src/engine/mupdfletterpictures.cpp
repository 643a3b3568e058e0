#include "engine/mupdfpictures.h"

namespace tamo {
namespace {

// A device that looks for pictures only.
void MeetImage(fz_context* context, fz_device* /*device*/, fz_image* image, fz_matrix /*place*/,
               float /*alpha*/, fz_color_params /*params*/) {
  PreparePicture(context, image);
}

void MeetMask(fz_context* context, fz_device* /*device*/, fz_image* image, fz_matrix /*place*/,
              fz_colorspace* /*space*/, const float* /*colour*/, float /*alpha*/,
              fz_color_params /*params*/) {
  PreparePicture(context, image);
}

void MeetClip(fz_context* context, fz_device* /*device*/, fz_image* image, fz_matrix /*place*/,
              fz_rect /*scissor*/) {
  PreparePicture(context, image);
}

void PrepareLetters(fz_context* context, fz_device* device, const fz_text_span& span) {
  for (int i = 0; i < span.len; ++i) {
    if (span.items[i].gid < 0) continue;
    fz_run_t3_glyph(context, span.font, span.items[i].gid, fz_identity, device);
  }
}

}  // namespace

void PreparePictures(fz_context* ctx, const fz_text* text) {
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
      PrepareLetters(ctx, device, *span);
    }
    if (device != nullptr) fz_close_device(ctx, device);
  }
  fz_always(ctx) fz_drop_device(ctx, device);
  fz_catch(ctx) fz_rethrow(ctx);
}

}  // namespace tamo
