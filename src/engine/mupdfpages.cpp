#include "engine/mupdfpages.h"

#include <cstring>
#include <utility>

#include "engine/mupdflayers.h"
#include "engine/mupdfpagetree.h"
#include "engine/mupdfrecord.h"
#include "engine/mupdfrunpage.h"

namespace tamo {
namespace {

// Thinner lines would fade to nothing when a large sheet is looked at as a whole.
constexpr float kThinnestLine = 1.0F;
constexpr int kFineShades = 8;
constexpr int kCoarseShades = 4;
constexpr int kLargestSide = 16384;

// The engine's own flag of a call, set when the call is cancelled.
class Cookie {
 public:
  explicit Cookie(CancelFlag& cancel) : cancel_(cancel) {
    cancel_.WhenCancelled([this] { Stop(cookie_); });
  }
  ~Cookie() { cancel_.WhenCancelled(nullptr); }
  Cookie(const Cookie&) = delete;
  Cookie& operator=(const Cookie&) = delete;
  fz_cookie* Get() { return &cookie_; }

 private:
  CancelFlag& cancel_;
  fz_cookie cookie_{};
};

// A warning of the engine that means a picture it could not decode, or not whole.
void NoteLostPicture(void* lost, const char* warning) {
  for (const char* words :
       {"padding truncated image", "jbig2dec error", "openjpeg error", "jpeg error", "jpx:"}) {
    if (std::strstr(warning, words) != nullptr) *static_cast<bool*>(lost) = true;
  }
}

// While it lives the engine's warnings on this context tell of lost pictures.
class PictureWatch {
 public:
  explicit PictureWatch(fz_context* context) : context_(context) {
    fz_set_warning_callback(context, NoteLostPicture, &lost_);
  }
  ~PictureWatch() {
    fz_flush_warnings(context_);
    fz_set_warning_callback(context_, Quiet, nullptr);
  }
  PictureWatch(const PictureWatch&) = delete;
  PictureWatch& operator=(const PictureWatch&) = delete;
  bool Lost() {
    fz_flush_warnings(context_);
    return lost_;
  }

 private:
  static void Quiet(void* /*user*/, const char* /*warning*/) {}
  fz_context* context_;
  bool lost_ = false;
};

struct Recording {
  fz_display_list* list = nullptr;
  fz_rect bounds = fz_empty_rect;
  PatternBudget budget;
};

bool RecordPage(fz_context* context, pdf_document* document, int index, fz_cookie* cookie,
                Recording* made) {
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
    made->bounds = pdf_bound_page(context, page);
    list = fz_new_display_list(context, made->bounds);
    device = NewRecorder(context, list, &made->budget);
    RunPage(context, page, device, cookie);
    fz_close_device(context, device);
  }
  fz_always(context) {
    fz_drop_device(context, device);
    fz_drop_page(context, page == nullptr ? nullptr : &page->super);
  }
  fz_catch(context) good = false;
  if (good && !IsStopped(*cookie)) {
    made->list = list;
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

MuPdfPage::MuPdfPage(std::shared_ptr<MuPdfContexts> contexts, void* list, PageSize size,
                     PageGaps gaps)
    : contexts_(std::move(contexts)), list_(list), size_(size), gaps_(gaps) {}

PageGaps MuPdfPage::Gaps() const {
  PageGaps gaps = gaps_;
  gaps.pictures = gaps.pictures || missesPictures_;
  return gaps;
}

MuPdfPage::~MuPdfPage() {
  contexts_->WithSpare([this](fz_context* context) {
    fz_drop_display_list(context, static_cast<fz_display_list*>(list_));
  });
}

MuPdfPages::MuPdfPages(fz_context* context, std::shared_ptr<MuPdfContexts> contexts,
                       const std::shared_ptr<PlanSource>& source, const QByteArray& password)
    : context_(context), contexts_(std::move(contexts)) {
  fz_stream* stream = nullptr;
  pdf_document* document = nullptr;
  fz_var(stream);
  fz_var(document);
  fz_try(context) {
    stream = NewPlanStream(context, contexts_, source);
    document = pdf_open_document_with_stream(context, stream);
    if (pdf_needs_password(context, document)) {
      pdf_authenticate_password(context, document, password.constData());
    }
    FlattenPageTree(context, document);
  }
  fz_always(context) fz_drop_stream(context, stream);
  fz_catch(context) {}
  document_ = document;
}

MuPdfPages::~MuPdfPages() {
  pdf_drop_document(context_, static_cast<pdf_document*>(document_));
}

std::shared_ptr<MuPdfPage> MuPdfPages::Read(int page, CancelFlag& cancel) {
  if (document_ == nullptr) return nullptr;
  Recording made;
  Cookie cookie(cancel);
  PictureWatch watch(context_);
  auto* document = static_cast<pdf_document*>(document_);
  if (!RecordPage(context_, document, page - 1, cookie.Get(), &made)) return nullptr;
  const PageSize size = {made.bounds.x1 - made.bounds.x0, made.bounds.y1 - made.bounds.y0};
  PageGaps gaps;
  gaps.pictures = watch.Lost();
  gaps.patterns = made.budget.exceeded;
  gaps.contents = cookie.Get()->errors > 0 && !gaps.pictures;
  auto read = std::make_shared<MuPdfPage>(contexts_, made.list, size, gaps);
  const bool sheet = size.width >= 1 && size.height >= 1 && size.width < 1e7 && size.height < 1e7;
  return sheet ? read : nullptr;
}

bool MuPdfPages::ShowLayers(const std::vector<bool>& shown) {
  return ShowLayersOf(context_, static_cast<pdf_document*>(document_), shown);
}

bool PaintPage(fz_context* context, const MuPdfPage& page, const PaintPart& part,
               CancelFlag& cancel, uint32_t* pixels) {
  if (part.width <= 0 || part.height <= 0) return false;
  if (part.width > kLargestSide || part.height > kLargestSide) return false;
  fz_set_aa_level(context, part.coarse ? kCoarseShades : kFineShades);
  fz_set_graphics_min_line_width(context, kThinnestLine);
  const fz_irect rect = {part.left, part.top, part.left + part.width, part.top + part.height};
  Cookie cookie(cancel);
  PictureWatch watch(context);
  const bool good =
      PaintList(context, static_cast<fz_display_list*>(page.List()), PlaceOf(part, page.Size()),
                rect, reinterpret_cast<unsigned char*>(pixels), cookie.Get());
  if (watch.Lost() || (cookie.Get()->errors > 0 && !cancel.Cancelled())) page.MissPictures();
  return good && !cancel.Cancelled();
}

}  // namespace tamo
