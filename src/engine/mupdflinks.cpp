#include <algorithm>

#include "engine/mupdffileinner.h"
#include "engine/mupdftarget.h"
#include "plans/wireguide.h"

// The links on a page, and where a target lies in the plan.

namespace tamo {
namespace {

constexpr int kMostAnnotations = 200000;  // of one page
constexpr int kHidden = 1 << 1 | 1 << 5;  // not shown at all, or not on a screen

struct RawLink {
  fz_rect box = fz_empty_rect;
  RawTarget target;
};

void TakeLink(fz_context* context, pdf_document* document, pdf_obj* annotation,
              std::vector<RawLink>* links) {
  if (!pdf_name_eq(context, pdf_dict_get(context, annotation, PDF_NAME(Subtype)), PDF_NAME(Link)))
    return;
  if ((pdf_dict_get_int(context, annotation, PDF_NAME(F)) & kHidden) != 0) return;
  links->emplace_back();
  links->back().box = pdf_dict_get_rect(context, annotation, PDF_NAME(Rect));
  ReadTarget(context, document, annotation, &links->back().target);
}

void TakeLinks(fz_context* context, pdf_document* document, pdf_obj* annotations,
               std::vector<RawLink>* links) {
  const int count = std::min(pdf_array_len(context, annotations), kMostAnnotations);
  for (int i = 0; i < count && links->size() < size_t(kMostLinks); ++i) {
    fz_try(context) TakeLink(context, document, pdf_array_get(context, annotations, i), links);
    fz_catch(context) {}
  }
}

}  // namespace

// Which page of the plan a target means; 0 when there is none. The same page twice is the first.
int MuPdfFile::Inner::PageOf(const RawTarget& target) const {
  if (target.pageIndex >= 0)
    return size_t(target.pageIndex) < pages.size() ? target.pageIndex + 1 : 0;
  if (target.pageObject <= 0) return 0;
  if (pageOfObject.empty()) {
    for (size_t i = 0; i < pages.size(); ++i)
      pageOfObject.try_emplace(pages[i].object, static_cast<int>(i) + 1);
  }
  const auto found = pageOfObject.find(target.pageObject);
  return found == pageOfObject.end() ? 0 : found->second;
}

PlanTarget MuPdfFile::Inner::TargetOf(const RawTarget& raw) const {
  PlanTarget target;
  target.kind = raw.kind;
  target.outside = OneLine(QString::fromUtf8(raw.outside), kLongestAddress);
  if (raw.kind != PlanTarget::Kind::Page) return target;
  target.page = PageOf(raw);
  if (target.page == 0) {
    target.kind = PlanTarget::Kind::None;
    return target;
  }
  if (!raw.hasX && !raw.hasY) return target;
  const PageRecord& page = pages[size_t(target.page) - 1];
  const PagePoint corner = page.map.ToFile({0, 0});
  target.at =
      page.map.ToPage(raw.hasX ? double(raw.x) : corner.x, raw.hasY ? double(raw.y) : corner.y);
  target.at.x = std::clamp(target.at.x, 0.0, page.size.width);
  target.at.y = std::clamp(target.at.y, 0.0, page.size.height);
  target.placed = true;
  return target;
}

std::vector<PageLink> MuPdfFile::ReadLinks(int page) {
  std::vector<PageLink> links;
  Inner& inner = *inner_;
  if (inner.document == nullptr || page < 1 || size_t(page) > inner.pages.size()) return links;
  const PageRecord& record = inner.pages[size_t(page) - 1];
  fz_context* context = inner.context;
  std::vector<RawLink> found;
  pdf_obj* object = nullptr;
  fz_var(object);
  fz_try(context) {
    object = pdf_load_object(context, inner.document, record.object);
    TakeLinks(context, inner.document, pdf_dict_get(context, object, PDF_NAME(Annots)), &found);
  }
  fz_always(context) pdf_drop_obj(context, object);
  fz_catch(context) {}
  const PageBox whole = {0, 0, record.size.width, record.size.height};
  for (const RawLink& raw : found) {
    PageLink link;
    link.box = NoBox();
    link.box.Take(record.map.ToPage(double(raw.box.x0), double(raw.box.y0)));
    link.box.Take(record.map.ToPage(double(raw.box.x1), double(raw.box.y1)));
    link.box = link.box.Cut(whole);
    link.target = inner.TargetOf(raw.target);
    if (!link.box.Empty()) links.push_back(std::move(link));
  }
  inner.ForgetObjects();
  return links;
}

}  // namespace tamo
