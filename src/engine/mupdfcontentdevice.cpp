#include "engine/mupdfcontentdevice.h"

#include <algorithm>
#include <cmath>

#include "engine/mupdfcontenttext.h"

// The engine leaves a function by a jump when it fails, so what may fail comes first in each
// callback, before any object with a destructor.

namespace tamo {
namespace {

using TextUse = ContentGatherer::TextUse;

constexpr size_t kMostKept = size_t(4) << 20;

struct Device {
  fz_device super;
  ContentGatherer* gatherer;
};

ContentGatherer& Of(fz_device* device) {
  return *reinterpret_cast<Device*>(device)->gatherer;
}

unsigned ColourOf(fz_context* context, fz_colorspace* space, const float* colour,
                  fz_color_params params) {
  float rgb[3] = {0, 0, 0};
  if (space != nullptr) {
    fz_convert_color(context, space, colour, fz_device_rgb(context), rgb, nullptr, params);
  }
  unsigned number = 0;
  for (const float part : rgb) {
    number = number << 8 | static_cast<unsigned>(std::lround(std::clamp(part, 0.0F, 1.0F) * 255));
  }
  return number;
}

PageBox BoxOf(fz_rect rect) {
  return {rect.x0, rect.y0, rect.x1, rect.y1};
}

// --- Walking a path

struct Walk {
  std::vector<PathStep>* steps;
  fz_matrix place;
  PagePoint began;
};

PagePoint Placed(const Walk& walk, float x, float y) {
  const fz_point at = fz_transform_point_xy(x, y, walk.place);
  return {at.x, at.y};
}

void MoveTo(fz_context* /*context*/, void* arg, float x, float y) {
  auto& walk = *static_cast<Walk*>(arg);
  walk.began = Placed(walk, x, y);
  walk.steps->push_back({PathStep::Kind::Move, walk.began, {}, {}});
}

void LineTo(fz_context* /*context*/, void* arg, float x, float y) {
  auto& walk = *static_cast<Walk*>(arg);
  walk.steps->push_back({PathStep::Kind::Line, Placed(walk, x, y), {}, {}});
}

void CurveTo(fz_context* /*context*/, void* arg, float x1, float y1, float x2, float y2, float x3,
             float y3) {
  auto& walk = *static_cast<Walk*>(arg);
  walk.steps->push_back(
      {PathStep::Kind::Curve, Placed(walk, x3, y3), Placed(walk, x1, y1), Placed(walk, x2, y2)});
}

void ClosePath(fz_context* /*context*/, void* arg) {
  auto& walk = *static_cast<Walk*>(arg);
  walk.steps->push_back({PathStep::Kind::Close, walk.began, {}, {}});
}

constexpr fz_path_walker kWalker = {MoveTo,  LineTo,  CurveTo, ClosePath,
                                    nullptr, nullptr, nullptr, nullptr};

// --- What the engine calls

void FillPath(fz_context* context, fz_device* device, const fz_path* path, int evenOdd,
              fz_matrix place, fz_colorspace* space, const float* colour, float alpha,
              fz_color_params params) {
  const unsigned number = ColourOf(context, space, colour, params);
  PathPiece piece;
  piece.evenOdd = evenOdd != 0;
  piece.colour = number;
  piece.alpha = alpha;
  Of(device).TakePath(context, path, place, std::move(piece));
}

void StrokePath(fz_context* context, fz_device* device, const fz_path* path,
                const fz_stroke_state* stroke, fz_matrix place, fz_colorspace* space,
                const float* colour, float alpha, fz_color_params params) {
  const unsigned number = ColourOf(context, space, colour, params);
  PathPiece piece;
  piece.kind = PathPiece::Kind::Stroke;
  piece.width = static_cast<double>(stroke->linewidth * fz_matrix_expansion(place));
  piece.dashed = stroke->dash_len > 0;
  piece.colour = number;
  piece.alpha = alpha;
  Of(device).TakePath(context, path, place, std::move(piece));
}

void ClipPath(fz_context* context, fz_device* device, const fz_path* path, int /*evenOdd*/,
              fz_matrix place, fz_rect /*scissor*/) {
  Of(device).PushClip(fz_bound_path(context, path, nullptr, place));
}

void ClipStrokePath(fz_context* context, fz_device* device, const fz_path* path,
                    const fz_stroke_state* stroke, fz_matrix place, fz_rect /*scissor*/) {
  Of(device).PushClip(fz_bound_path(context, path, stroke, place));
}

void FillText(fz_context* context, fz_device* device, const fz_text* text, fz_matrix place,
              fz_colorspace* space, const float* colour, float alpha, fz_color_params params) {
  const unsigned number = ColourOf(context, space, colour, params);
  Of(device).TakeText(context, text, place, {number, alpha}, TextUse::Filled);
}

void StrokeText(fz_context* context, fz_device* device, const fz_text* text,
                const fz_stroke_state* /*stroke*/, fz_matrix place, fz_colorspace* space,
                const float* colour, float alpha, fz_color_params params) {
  const unsigned number = ColourOf(context, space, colour, params);
  Of(device).TakeText(context, text, place, {number, alpha}, TextUse::Stroked);
}

void ClipText(fz_context* context, fz_device* device, const fz_text* text, fz_matrix place,
              fz_rect /*scissor*/) {
  const fz_rect area = fz_bound_text(context, text, nullptr, place);
  Of(device).TakeText(context, text, place, {}, TextUse::CutOut);
  Of(device).PushClip(area);
}

void ClipStrokeText(fz_context* context, fz_device* device, const fz_text* text,
                    const fz_stroke_state* stroke, fz_matrix place, fz_rect /*scissor*/) {
  const fz_rect area = fz_bound_text(context, text, stroke, place);
  Of(device).TakeText(context, text, place, {}, TextUse::CutOut);
  Of(device).PushClip(area);
}

void IgnoreText(fz_context* context, fz_device* device, const fz_text* text, fz_matrix place) {
  Of(device).TakeText(context, text, place, {}, TextUse::Hidden);
}

void FillShade(fz_context* context, fz_device* device, fz_shade* shade, fz_matrix place,
               float /*alpha*/, fz_color_params /*params*/) {
  Of(device).TakePicture(PicturePiece::Kind::Shading, fz_bound_shade(context, shade, place), 0, 0);
}

void FillImage(fz_context* /*context*/, fz_device* device, fz_image* image, fz_matrix place,
               float /*alpha*/, fz_color_params /*params*/) {
  Of(device).TakePicture(PicturePiece::Kind::Picture, fz_transform_rect(fz_unit_rect, place),
                         image->w, image->h);
}

void FillImageMask(fz_context* /*context*/, fz_device* device, fz_image* image, fz_matrix place,
                   fz_colorspace* /*space*/, const float* /*colour*/, float /*alpha*/,
                   fz_color_params /*params*/) {
  Of(device).TakePicture(PicturePiece::Kind::Stencil, fz_transform_rect(fz_unit_rect, place),
                         image->w, image->h);
}

void ClipImageMask(fz_context* /*context*/, fz_device* device, fz_image* image, fz_matrix place,
                   fz_rect /*scissor*/) {
  const fz_rect area = fz_transform_rect(fz_unit_rect, place);
  Of(device).TakePicture(PicturePiece::Kind::Stencil, area, image->w, image->h);
  Of(device).PushClip(area);
}

void PopClip(fz_context* /*context*/, fz_device* device) {
  Of(device).PopClip();
}

void BeginMask(fz_context* /*context*/, fz_device* device, fz_rect area, int /*luminosity*/,
               fz_colorspace* /*space*/, const float* /*back*/, fz_color_params /*params*/) {
  Of(device).BeginAside();
  Of(device).PushClip(area);
}

// From here on the mask cuts; the clip that was pushed for it goes with PopClip.
void EndMask(fz_context* /*context*/, fz_device* device) {
  Of(device).EndAside();
}

int BeginTile(fz_context* /*context*/, fz_device* device, fz_rect area, fz_rect /*view*/,
              float /*stepX*/, float /*stepY*/, fz_matrix place, int /*id*/) {
  Of(device).TakePicture(PicturePiece::Kind::Pattern, fz_transform_rect(area, place), 0, 0);
  Of(device).BeginAside();
  return 0;
}

void EndTile(fz_context* /*context*/, fz_device* device) {
  Of(device).EndAside();
}

}  // namespace

ContentGatherer::ContentGatherer(PageContent& content, const PageBox& page,
                                 const std::atomic<bool>* cancel, fz_cookie& cookie)
    : content_(content), clips_{page}, cancel_(cancel), cookie_(cookie) {}

// A macro below wants this name of the context.
fz_device* ContentGatherer::NewDevice(fz_context* ctx, bool textsOnly) {
  auto* device = fz_new_derived_device(ctx, Device);
  device->gatherer = this;
  fz_device& calls = device->super;
  calls.clip_path = ClipPath;
  calls.clip_stroke_path = ClipStrokePath;
  calls.fill_text = FillText;
  calls.stroke_text = StrokeText;
  calls.clip_text = ClipText;
  calls.clip_stroke_text = ClipStrokeText;
  calls.ignore_text = IgnoreText;
  calls.clip_image_mask = ClipImageMask;
  calls.pop_clip = tamo::PopClip;
  calls.begin_mask = BeginMask;
  calls.end_mask = EndMask;
  calls.begin_tile = BeginTile;
  calls.end_tile = EndTile;
  if (textsOnly) return &calls;
  calls.fill_path = FillPath;
  calls.stroke_path = StrokePath;
  calls.fill_shade = FillShade;
  calls.fill_image = FillImage;
  calls.fill_image_mask = FillImageMask;
  return &calls;
}

bool ContentGatherer::GoesOn() {
  if (cancel_ != nullptr && *cancel_) cookie_.abort = 1;
  if (kept_ > kMostKept) {
    content_.problem = QStringLiteral("the page holds more lines than can be read");
    cookie_.abort = 1;
  }
  return aside_ == 0 && cookie_.abort == 0;
}

void ContentGatherer::PushClip(fz_rect area) {
  clips_.push_back(clips_.back().Cut(BoxOf(area)));
}

void ContentGatherer::PopClip() {
  lastText_ = nullptr;
  if (clips_.size() > 1) clips_.pop_back();
}

void ContentGatherer::TakePath(fz_context* context, const fz_path* path, fz_matrix place,
                               PathPiece piece) {
  if (!GoesOn()) return;
  lastText_ = nullptr;
  Walk walk = {&piece.steps, place, {}};
  fz_walk_path(context, path, &kWalker, &walk);
  kept_ += piece.steps.size();
  piece.clip = clips_.back();
  PageBox around = NoBox();
  for (const PathStep& step : piece.steps) {
    around.Take(step.at);
    if (step.kind != PathStep::Kind::Curve) continue;
    around.Take(step.by1);
    around.Take(step.by2);
  }
  const double half = piece.width / 2;
  around = {around.left - half, around.top - half, around.right + half, around.bottom + half};
  piece.box = around.Cut(piece.clip);
  // A line of no width along the page has a box of no height: it can be seen nevertheless.
  const bool seen = piece.box.right >= piece.box.left && piece.box.bottom >= piece.box.top;
  if (seen && !piece.steps.empty()) content_.paths.push_back(std::move(piece));
}

bool ContentGatherer::SameTextAgain(const fz_text* text, TextUse use) {
  const fz_text_span* first = text->head;
  if (first == nullptr || first->len == 0) return true;
  const bool inked = use != TextUse::Hidden && lastUse_ != TextUse::Hidden;
  const bool same = text == lastText_ && inked && use > lastUse_ && first->items[0].x == lastX_ &&
                    first->items[0].y == lastY_;
  lastText_ = text;
  lastUse_ = use;
  lastX_ = first->items[0].x;
  lastY_ = first->items[0].y;
  return same;
}

void ContentGatherer::TakeText(fz_context* context, const fz_text* text, fz_matrix place, Ink ink,
                               TextUse use) {
  if (!GoesOn() || SameTextAgain(text, use)) return;
  const bool inkless = use == TextUse::Hidden;
  for (const fz_text_span* span = text->head; span != nullptr; span = span->next) {
    TextPiece like;
    like.colour = ink.colour;
    // The engine also tells letters drawn as small pictures this way, after it has painted them.
    like.hidden = (inkless && fz_font_t3_procs(context, span->font) == nullptr) || ink.alpha == 0;
    for (TextPiece& piece : PiecesOf(context, *span, place, like)) {
      kept_ += piece.places.size();
      piece.clipped = piece.box.Cut(clips_.back()).Empty();
      content_.texts.push_back(std::move(piece));
    }
  }
}

void ContentGatherer::TakePicture(PicturePiece::Kind kind, fz_rect area, int width, int height) {
  if (!GoesOn()) return;
  const PageBox box = BoxOf(area).Cut(clips_.back());
  if (!box.Empty()) content_.pictures.push_back({kind, box, width, height});
}

}  // namespace tamo
