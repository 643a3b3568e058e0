#include "engine/mupdfrunpage.h"

#include "engine/mupdffileinner.h"

namespace tamo {

void RunPage(fz_context* context, pdf_page* page, fz_device* device, fz_cookie* cookie) {
  pdf_run_page_contents(context, page, device, fz_identity, cookie);
  for (pdf_annot* annotation = pdf_first_annot(context, page); annotation != nullptr;
       annotation = pdf_next_annot(context, annotation)) {
    if (IsStopped(*cookie)) return;
    if (IsOwnMark(context, pdf_annot_obj(context, annotation))) continue;
    pdf_run_annot(context, annotation, device, fz_identity, cookie);
  }
  pdf_run_page_widgets(context, page, device, fz_identity, cookie);
}

}  // namespace tamo
