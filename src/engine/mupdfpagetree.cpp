#include "engine/mupdfpagetree.h"

#include <set>
#include <vector>

namespace tamo {
namespace {

constexpr int kMostPages = 100000;
constexpr size_t kDeepest = 200;

struct Node {
  pdf_obj* kids;
  int next;
};

// The next leaf behind the place that `way` stands at, null when there is none. Throws as the
// engine does.
pdf_obj* NextPage(fz_context* context, std::vector<Node>& way, std::set<int>& seen) {
  while (!way.empty()) {
    Node& node = way.back();
    if (node.next >= pdf_array_len(context, node.kids)) {
      way.pop_back();
      continue;
    }
    pdf_obj* kid = pdf_array_get(context, node.kids, node.next++);
    if (!pdf_is_dict(context, kid)) continue;
    pdf_obj* kids = pdf_dict_get(context, kid, PDF_NAME(Kids));
    if (!pdf_is_array(context, kids)) return kid;
    const int number = pdf_to_num(context, kid);
    const bool again = number > 0 && !seen.insert(number).second;
    if (!again && way.size() < kDeepest) way.push_back({kids, 0});
  }
  return nullptr;
}

void AppendPage(fz_context* context, pdf_obj* page, void* pages) {
  fz_try(context) pdf_array_push(context, static_cast<pdf_obj*>(pages), page);
  fz_catch(context) {}
}

}  // namespace

void WalkPages(fz_context* context, pdf_document* document,
               void (*take)(fz_context* context, pdf_obj* page, void* state), void* state) {
  std::vector<Node> way;
  std::set<int> seen;
  fz_try(context) {
    pdf_obj* root = pdf_dict_getp(context, pdf_trailer(context, document), "Root/Pages");
    seen.insert(pdf_to_num(context, root));
    way.push_back({pdf_dict_get(context, root, PDF_NAME(Kids)), 0});
    for (int count = 0; count < kMostPages; ++count) {
      pdf_obj* page = NextPage(context, way, seen);
      if (page == nullptr) break;
      take(context, page, state);
    }
  }
  fz_catch(context) {}
}

void FlattenPageTree(fz_context* context, pdf_document* document) {
  pdf_obj* flat = pdf_new_array(context, document, 64);
  pdf_obj* tree = nullptr;
  fz_var(tree);
  fz_try(context) {
    WalkPages(context, document, AppendPage, flat);
    tree = pdf_new_dict(context, document, 4);
    pdf_dict_put(context, tree, PDF_NAME(Type), PDF_NAME(Pages));
    pdf_dict_put_int(context, tree, PDF_NAME(Count), pdf_array_len(context, flat));
    pdf_dict_put(context, tree, PDF_NAME(Kids), flat);
    pdf_obj* root = pdf_dict_get(context, pdf_trailer(context, document), PDF_NAME(Root));
    pdf_dict_put(context, root, PDF_NAME(Pages), tree);
  }
  fz_always(context) {
    pdf_drop_obj(context, tree);
    pdf_drop_obj(context, flat);
  }
  fz_catch(context) fz_rethrow(context);
}

}  // namespace tamo
