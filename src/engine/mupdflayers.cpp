#include "engine/mupdflayers.h"

namespace tamo {

bool ShowLayersOf(fz_context* context, pdf_document* document, const std::vector<bool>& shown) {
  bool good = document != nullptr;
  fz_var(good);
  fz_try(context) {
    const int count = good ? pdf_count_layers(context, document) : 0;
    good = good && static_cast<size_t>(count) >= shown.size();
    for (int i = 0; good && i < static_cast<int>(shown.size()); ++i)
      pdf_enable_layer(context, document, i, shown[static_cast<size_t>(i)] ? 1 : 0);
  }
  fz_catch(context) good = false;
  return good;
}

}  // namespace tamo
