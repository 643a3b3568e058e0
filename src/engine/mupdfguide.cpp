#include <QStringList>
#include <algorithm>
#include <map>
#include <set>

#include "engine/mupdffileinner.h"
#include "engine/mupdflayers.h"
#include "engine/mupdftarget.h"
#include "plans/pagelabels.h"
#include "plans/wireguide.h"

// What a plan says of itself: labels of pages, bookmarks, layers. Trees that run in a circle, or
// are larger than anybody makes them, end where that shows.

namespace tamo {
namespace {

constexpr int kMostNodes = 20000;
constexpr int kDeepestLabels = 32;

// What was taken out of the document, held until all is read: a damaged one is repaired while it is
// read.
struct Held {
  std::vector<pdf_obj*> objects;
  pdf_obj* Keep(fz_context* context, pdf_obj* object) {
    if (object != nullptr) objects.push_back(pdf_keep_obj(context, object));
    return object;
  }
  void Drop(fz_context* context) {
    for (pdf_obj* object : objects) pdf_drop_obj(context, object);
    objects.clear();
  }
};

struct Labels {
  std::vector<LabelRange> ranges;
  std::set<int> seen;
  Held held;
};

// Gives the ranges that an array of numbers and dictionaries names.
void TakeRanges(fz_context* context, pdf_obj* numbers, Labels* labels) {
  const int count = std::min(pdf_array_len(context, numbers), 2 * kMostNodes);
  for (int i = 0; i + 1 < count; i += 2) {
    const int from = pdf_array_get_int(context, numbers, i);
    pdf_obj* entry = pdf_array_get(context, numbers, i + 1);
    const char* style = pdf_to_name(context, pdf_dict_get(context, entry, PDF_NAME(S)));
    pdf_obj* prefix = pdf_dict_get(context, entry, PDF_NAME(P));
    const char* words = prefix == nullptr ? "" : pdf_to_text_string(context, prefix);
    pdf_obj* start = pdf_dict_gets(context, entry, "St");
    const int first = start == nullptr ? 1 : pdf_to_int(context, start);
    if (labels->ranges.size() >= size_t(kMostNodes)) return;
    labels->ranges.push_back({from, *style, QString::fromUtf8(words).left(kLongestLabel), first});
  }
}

void WalkLabels(fz_context* context, pdf_obj* node, Labels* labels, int depth) {
  const int number = pdf_to_num(context, node);
  if (depth > kDeepestLabels || labels->seen.size() > size_t(kMostNodes)) return;
  if (number > 0 && !labels->seen.insert(number).second) return;
  TakeRanges(context, labels->held.Keep(context, pdf_dict_get(context, node, PDF_NAME(Nums))),
             labels);
  pdf_obj* kids = labels->held.Keep(context, pdf_dict_get(context, node, PDF_NAME(Kids)));
  for (int i = 0; i < std::min(pdf_array_len(context, kids), kMostNodes); ++i)
    WalkLabels(context, labels->held.Keep(context, pdf_array_get(context, kids, i)), labels,
               depth + 1);
}

// --- Bookmarks

struct RawBookmark {
  QByteArray title;
  int depth = 0;
  RawTarget target;
};

void TakeBookmark(fz_context* context, pdf_document* document, pdf_obj* item, RawBookmark* mark) {
  const char* title = pdf_to_text_string(context, pdf_dict_get(context, item, PDF_NAME(Title)));
  mark->title = QByteArray(title).left(4 * kLongestEntryTitle);
  fz_try(context) ReadTarget(context, document, item, &mark->target);
  fz_catch(context) mark->target = {};
}

struct Outline {
  std::vector<pdf_obj*> way;  // the next item of each depth
  std::set<int> seen;
  std::vector<RawBookmark> found;
  Held held;
};

// False when the outline goes on beyond what is taken of it.
bool WalkOutline(fz_context* context, pdf_document* document, Outline* outline) {
  while (!outline->way.empty()) {
    pdf_obj* item = outline->way.back();
    outline->way.pop_back();
    const int number = pdf_to_num(context, item);
    if (!pdf_is_dict(context, item) || (number > 0 && !outline->seen.insert(number).second))
      continue;
    if (outline->found.size() >= size_t(kMostBookmarks)) return false;
    outline->found.emplace_back();
    RawBookmark& mark = outline->found.back();
    mark.depth = static_cast<int>(outline->way.size());
    TakeBookmark(context, document, item, &mark);
    pdf_obj* next = pdf_dict_get(context, item, PDF_NAME(Next));
    outline->way.push_back(outline->held.Keep(context, next));
    pdf_obj* first = outline->held.Keep(context, pdf_dict_get(context, item, PDF_NAME(First)));
    if (first != nullptr && outline->way.size() <= size_t(kDeepestBookmark))
      outline->way.push_back(first);
  }
  return true;
}

// --- Layers

struct RawLayer {
  QByteArray name;
  int object = 0;
  bool shown = true;
};

bool WalkLayers(fz_context* context, pdf_document* document, std::vector<RawLayer>* layers,
                std::set<int>* locked) {
  const int count = pdf_count_layers(context, document);
  pdf_obj* known = pdf_dict_getp(context, pdf_trailer(context, document), "Root/OCProperties/OCGs");
  for (int i = 0; i < std::min(count, kMostLayers); ++i) {
    const char* name = pdf_layer_name(context, document, i);
    layers->emplace_back();
    layers->back().name = name;
    layers->back().shown = pdf_layer_is_enabled(context, document, i) != 0;
    layers->back().object = pdf_to_num(context, pdf_array_get(context, known, i));
  }
  pdf_obj* held =
      pdf_dict_getp(context, pdf_trailer(context, document), "Root/OCProperties/D/Locked");
  for (int i = 0; i < std::min(pdf_array_len(context, held), kMostLayers); ++i)
    locked->insert(pdf_to_num(context, pdf_array_get(context, held, i)));
  return count <= kMostLayers;
}

}  // namespace

void MuPdfFile::Inner::ReadLabels(PlanGuide& guide) {
  Labels labels;
  fz_try(context) {
    pdf_obj* tree = pdf_dict_getp(context, pdf_trailer(context, document), "Root/PageLabels");
    if (tree != nullptr) WalkLabels(context, labels.held.Keep(context, tree), &labels, 0);
  }
  fz_always(context) labels.held.Drop(context);
  fz_catch(context) guide.problem = QStringLiteral("the labels of the pages are damaged");
  for (const QString& label : PageLabels(std::move(labels.ranges), int(pages.size())))
    guide.labels += OneLine(label, kLongestLabel);
}

void MuPdfFile::Inner::ReadBookmarks(PlanGuide& guide) {
  Outline outline;
  bool whole = true;
  fz_var(whole);
  fz_try(context) {
    pdf_obj* first = pdf_dict_getp(context, pdf_trailer(context, document), "Root/Outlines/First");
    if (first != nullptr) outline.way.push_back(outline.held.Keep(context, first));
    whole = WalkOutline(context, document, &outline);
  }
  fz_always(context) outline.held.Drop(context);
  fz_catch(context) guide.problem = QStringLiteral("the bookmarks are damaged");
  if (!whole)
    guide.problem = QStringLiteral("only the first %1 bookmarks are shown").arg(kMostBookmarks);
  for (const RawBookmark& raw : outline.found) {
    PlanBookmark bookmark;
    bookmark.title = OneLine(QString::fromUtf8(raw.title), kLongestEntryTitle);
    bookmark.depth = std::min(raw.depth, kDeepestBookmark);
    bookmark.target = TargetOf(raw.target);
    guide.bookmarks.push_back(std::move(bookmark));
  }
}

void MuPdfFile::Inner::ReadLayers(PlanGuide& guide) {
  std::vector<RawLayer> layers;
  std::set<int> locked;
  bool whole = true;
  fz_var(whole);
  fz_try(context) whole = WalkLayers(context, document, &layers, &locked);
  fz_catch(context) {
    layers.clear();
    guide.problem = QStringLiteral("the list of layers is damaged");
  }
  if (!whole)
    guide.problem = QStringLiteral("only the first %1 layers are listed").arg(kMostLayers);
  for (const RawLayer& raw : layers) {
    PlanLayer layer;
    layer.name = OneLine(QString::fromUtf8(raw.name), kLongestEntryTitle);
    layer.shown = raw.shown;
    layer.locked = raw.object > 0 && locked.count(raw.object) != 0;
    guide.layers.push_back(std::move(layer));
  }
}

bool MuPdfFile::ShowLayers(const std::vector<bool>& shown) {
  return ShowLayersOf(inner_->context, inner_->document, shown);
}

PlanGuide MuPdfFile::ReadGuide() {
  PlanGuide guide;
  if (inner_->document == nullptr) return guide;
  inner_->ReadLabels(guide);
  inner_->ReadBookmarks(guide);
  inner_->ReadLayers(guide);
  return guide;
}

}  // namespace tamo
