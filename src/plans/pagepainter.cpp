#include "plans/pagepainter.h"

#include <atomic>
#include <cmath>
#include <utility>

#include "plans/pagerun.h"

namespace tamo {
namespace {

// Thinner lines would fade to nothing when a large sheet is looked at as a whole.
constexpr float kThinnestLine = 1.0F;
constexpr int kFineShades = 8;
constexpr int kCoarseShades = 4;
constexpr int kLargestSide = 16384;

fz_cookie* CookieOf(PaintStop& stop) {
  return static_cast<fz_cookie*>(stop.Cookie());
}

// A pattern that would be repeated millions of times is no drawing but a trap: nothing can stop the
// engine once it paints it, so it is refused when the page is read.
constexpr double kMostRepeats = 4e6;
using BeginTile = int (*)(fz_context*, fz_device*, fz_rect, fz_rect, float, float, fz_matrix, int);
std::atomic<BeginTile> listBeginTile = nullptr;

int BeginBoundedTile(fz_context* context, fz_device* device, fz_rect area, fz_rect view,
                     float stepX, float stepY, fz_matrix place, int id) {
  const double across = std::abs((area.x1 - area.x0) / static_cast<double>(stepX));
  const double down = std::abs((area.y1 - area.y0) / static_cast<double>(stepY));
  if (!(across * down < kMostRepeats)) fz_throw(context, FZ_ERROR_GENERIC, "pattern too fine");
  return listBeginTile.load()(context, device, area, view, stepX, stepY, place, id);
}

bool RecordPage(fz_context* context, pdf_document* document, int index, fz_cookie* cookie,
                fz_display_list** made, fz_rect* bounds) {
  pdf_page* page = nullptr;
  fz_display_list* list = nullptr;
  fz_device* device = nullptr;
  bool good = true;
  fz_var(page);
  fz_var(list);
  fz_var(device);
  fz_var(good);
  fz_try(context) {
    page = pdf_load_page(context, document, index);
    *bounds = pdf_bound_page(context, page);
    list = fz_new_display_list(context, *bounds);
    device = fz_new_list_device(context, list);
    listBeginTile = device->begin_tile;
    device->begin_tile = BeginBoundedTile;
    RunPage(context, page, device, cookie);
    fz_close_device(context, device);
  }
  fz_always(context) {
    fz_drop_device(context, device);
    fz_drop_page(context, page == nullptr ? nullptr : &page->super);
  }
  fz_catch(context) good = false;
  if (good && !cookie->abort) {
    *made = list;
    return true;
  }
  fz_drop_display_list(context, list);
  return false;
}

// From points of the page to pixels of the whole turned page.
fz_matrix PlaceOf(const PaintPart& part, PageSize size) {
  const auto scale = static_cast<float>(part.pixelsPerPoint);
  const auto width = static_cast<float>(size.width) * scale;
  const auto height = static_cast<float>(size.height) * scale;
  const fz_matrix scaled = fz_scale(scale, scale);
  switch (part.turn) {
    case 90:
      return fz_concat(scaled, fz_make_matrix(0, 1, -1, 0, height, 0));
    case 180:
      return fz_concat(scaled, fz_make_matrix(-1, 0, 0, -1, width, height));
    case 270:
      return fz_concat(scaled, fz_make_matrix(0, -1, 1, 0, 0, width));
    default:
      return scaled;
  }
}

bool PaintList(fz_context* context, fz_display_list* list, fz_matrix place, fz_irect rect,
               unsigned char* pixels, fz_cookie* cookie) {
  fz_pixmap* pixmap = nullptr;
  fz_device* device = nullptr;
  bool good = true;
  fz_var(pixmap);
  fz_var(device);
  fz_var(good);
  fz_try(context) {
    pixmap =
        fz_new_pixmap_with_bbox_and_data(context, fz_device_bgr(context), rect, nullptr, 1, pixels);
    fz_clear_pixmap_with_value(context, pixmap, 0xff);
    device = fz_new_draw_device(context, fz_identity, pixmap);
    fz_run_display_list(context, list, device, place, fz_rect_from_irect(rect), cookie);
    fz_close_device(context, device);
  }
  fz_always(context) {
    fz_drop_device(context, device);
    fz_drop_pixmap(context, pixmap);
  }
  fz_catch(context) good = false;
  return good;
}

}  // namespace

PaintStop::PaintStop() : cookie_(std::make_shared<fz_cookie>()) {
  *static_cast<fz_cookie*>(cookie_.get()) = fz_cookie{};
}

PaintStop::~PaintStop() = default;

void PaintStop::Stop() {
  static_cast<fz_cookie*>(cookie_.get())->abort = 1;
}

bool PaintStop::Stopped() const {
  return static_cast<fz_cookie*>(cookie_.get())->abort != 0;
}

PageList::PageList(std::shared_ptr<MuWorld> world, void* list, PageSize size)
    : world_(std::move(world)), list_(list), size_(size) {}

PageList::~PageList() {
  world_->WithSpare([this](fz_context* context) {
    fz_drop_display_list(context, static_cast<fz_display_list*>(list_));
  });
}

PageSource::PageSource(fz_context* context, std::shared_ptr<MuWorld> world,
                       const std::shared_ptr<ReaderSlot>& slot, const QByteArray& password)
    : context_(context), world_(std::move(world)) {
  fz_stream* stream = nullptr;
  pdf_document* document = nullptr;
  fz_var(stream);
  fz_var(document);
  fz_try(context) {
    stream = NewPlanStream(context, world_, slot);
    document = pdf_open_document_with_stream(context, stream);
    if (pdf_needs_password(context, document)) {
      pdf_authenticate_password(context, document, password.constData());
    }
  }
  fz_always(context) fz_drop_stream(context, stream);
  fz_catch(context) {}
  document_ = document;
}

PageSource::~PageSource() {
  pdf_drop_document(context_, static_cast<pdf_document*>(document_));
}

std::shared_ptr<PageList> PageSource::Read(int page, PaintStop& stop) {
  if (document_ == nullptr) return nullptr;
  fz_display_list* list = nullptr;
  fz_rect bounds = fz_empty_rect;
  auto* document = static_cast<pdf_document*>(document_);
  if (!RecordPage(context_, document, page - 1, CookieOf(stop), &list, &bounds)) return nullptr;
  const PageSize size = {bounds.x1 - bounds.x0, bounds.y1 - bounds.y0};
  auto read = std::make_shared<PageList>(world_, list, size);
  const bool sheet = size.width >= 1 && size.height >= 1 && size.width < 1e7 && size.height < 1e7;
  return sheet ? read : nullptr;
}

bool PaintPage(fz_context* context, const PageList& list, const PaintPart& part, PaintStop& stop,
               Picture& picture) {
  if (part.width <= 0 || part.height <= 0) return false;
  if (part.width > kLargestSide || part.height > kLargestSide) return false;
  picture.width = part.width;
  picture.height = part.height;
  picture.pixels.resize(static_cast<size_t>(part.width) * static_cast<size_t>(part.height));
  fz_set_aa_level(context, part.coarse ? kCoarseShades : kFineShades);
  fz_set_graphics_min_line_width(context, kThinnestLine);
  const fz_irect rect = {part.left, part.top, part.left + part.width, part.top + part.height};
  const bool good =
      PaintList(context, static_cast<fz_display_list*>(list.List()), PlaceOf(part, list.Size()),
                rect, reinterpret_cast<unsigned char*>(picture.pixels.data()), CookieOf(stop));
  return good && !stop.Stopped();
}

}  // namespace tamo
