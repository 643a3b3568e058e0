#include "engine/mupdfrecord.h"

#include <algorithm>
#include <cmath>

#include "engine/mupdfpictures.h"

namespace tamo {
namespace {

constexpr float kLeastStep = 0.01F;
thread_local PatternBudget* budget = nullptr;

// The calls of the engine's own recording device, the same for every list.
struct Calls {
  decltype(fz_device::begin_tile) beginTile = nullptr;
  decltype(fz_device::fill_image) fillImage = nullptr;
  decltype(fz_device::fill_image_mask) fillMask = nullptr;
  decltype(fz_device::clip_image_mask) clipMask = nullptr;
  decltype(fz_device::fill_text) fillText = nullptr;
};

const Calls& Own(const fz_device* fresh = nullptr) {
  static const Calls calls = {fresh->begin_tile, fresh->fill_image, fresh->fill_image_mask,
                              fresh->clip_image_mask, fresh->fill_text};
  return calls;
}

int BeginTile(fz_context* context, fz_device* device, fz_rect area, fz_rect view, float stepX,
              float stepY, fz_matrix place, int id) {
  const double across = std::abs((area.x1 - area.x0) / static_cast<double>(stepX));
  const double down = std::abs((area.y1 - area.y0) / static_cast<double>(stepY));
  if (across * down < budget->repeats) {
    budget->repeats -= across * down;
  } else {
    budget->exceeded = true;
    stepX = std::max(std::abs(stepX), kLeastStep);
    stepY = std::max(std::abs(stepY), kLeastStep);
    area.x1 = std::min(area.x1, area.x0 + stepX);
    area.y1 = std::min(area.y1, area.y0 + stepY);
  }
  return Own().beginTile(context, device, area, view, stepX, stepY, place, id);
}

void FillImage(fz_context* context, fz_device* device, fz_image* image, fz_matrix place,
               float alpha, fz_color_params params) {
  PreparePicture(context, image);
  Own().fillImage(context, device, image, place, alpha, params);
}

void FillMask(fz_context* context, fz_device* device, fz_image* image, fz_matrix place,
              fz_colorspace* space, const float* colour, float alpha, fz_color_params params) {
  PreparePicture(context, image);
  Own().fillMask(context, device, image, place, space, colour, alpha, params);
}

void ClipMask(fz_context* context, fz_device* device, fz_image* image, fz_matrix place,
              fz_rect scissor) {
  PreparePicture(context, image);
  Own().clipMask(context, device, image, place, scissor);
}

void FillText(fz_context* context, fz_device* device, const fz_text* text, fz_matrix place,
              fz_colorspace* space, const float* colour, float alpha, fz_color_params params) {
  PreparePictures(context, text);
  Own().fillText(context, device, text, place, space, colour, alpha, params);
}

}  // namespace

fz_device* NewRecorder(fz_context* context, fz_display_list* list, PatternBudget* limit) {
  budget = limit;
  fz_device* device = fz_new_list_device(context, list);
  Own(device);
  device->begin_tile = BeginTile;
  device->fill_image = FillImage;
  device->fill_image_mask = FillMask;
  device->clip_image_mask = ClipMask;
  device->fill_text = FillText;
  return device;
}

}  // namespace tamo
