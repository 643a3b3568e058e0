#include <algorithm>

#include "engine/mupdffileinner.h"

// What a plan says about being marked.

namespace tamo {
namespace {

constexpr int kNotesAllowed = 3;  // the level of a certificate that lets notes through
constexpr int kMostReferences = 100;

bool ForbidsNotes(fz_context* context, pdf_document* document) {
  bool forbids = false;
  fz_var(forbids);
  fz_try(context) {
    forbids = pdf_has_permission(context, document, FZ_PERMISSION_ANNOTATE) == 0;
  }
  fz_catch(context) forbids = false;
  return forbids;
}

// The level of the plan's certificate, 0 when it has none.
int CertifiedLevel(fz_context* context, pdf_document* document) {
  int level = 0;
  fz_var(level);
  fz_try(context) {
    pdf_obj* signature =
        pdf_dict_getp(context, pdf_trailer(context, document), "Root/Perms/DocMDP");
    pdf_obj* references = pdf_dict_gets(context, signature, "Reference");
    const int count = std::min(pdf_array_len(context, references), kMostReferences);
    if (signature != nullptr) level = 2;  // what a certificate means that does not say more
    for (int i = 0; i < count; ++i) {
      pdf_obj* told =
          pdf_dict_getp(context, pdf_array_get(context, references, i), "TransformParams/P");
      if (told != nullptr) level = pdf_to_int(context, told);
    }
  }
  fz_catch(context) level = level == 0 ? 0 : 2;
  return level;
}

}  // namespace

QString MuPdfFile::Inner::Reservation() const {
  if (ForbidsNotes(context, document)) {
    return QStringLiteral("Whoever made this plan does not allow notes in it.");
  }
  const int level = CertifiedLevel(context, document);
  if (level == 0) return {};
  if (level < kNotesAllowed) {
    return QStringLiteral(
        "This plan is certified, and its certificate does not allow notes: other programs will say "
        "that the marked copy was changed.");
  }
  if (!NeedsRewrite()) return {};
  return QStringLiteral(
      "This plan is certified and damaged: the marked copy is repaired, and other programs will "
      "say "
      "that it was changed.");
}

QString MuPdfFile::Inner::Caution() {
  const bool loose = std::any_of(pages.begin(), pages.end(),
                                 [](const PageRecord& page) { return page.object <= 0; });
  if (loose) {
    return QStringLiteral(
        "Some pages of this plan are built so that marks on them can't be saved.");
  }
  if (!NeedsRewrite() && !ReadEnd()) {
    return QStringLiteral("This plan is too damaged to hold marks: they can't be saved.");
  }
  return {};
}

}  // namespace tamo
