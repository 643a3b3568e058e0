#include "engine/mupdftarget.h"

#include <cstring>

namespace tamo {
namespace {

using Kind = PlanTarget::Kind;

void TakeNumber(fz_context* context, pdf_obj* array, int at, float* into, bool* has) {
  pdf_obj* number = pdf_array_get(context, array, at);
  *has = pdf_is_number(context, number) != 0;
  if (*has) *into = pdf_to_real(context, number);
}

// [page /XYZ left top zoom], [page /FitH top], [page /FitR left bottom right top] ...
void TakePlace(fz_context* context, pdf_obj* array, RawTarget* target) {
  const char* way = pdf_to_name(context, pdf_array_get(context, array, 1));
  const auto is = [way](const char* name) { return std::strcmp(way, name) == 0; };
  if (is("XYZ")) {
    TakeNumber(context, array, 2, &target->x, &target->hasX);
    TakeNumber(context, array, 3, &target->y, &target->hasY);
  } else if (is("FitR")) {
    TakeNumber(context, array, 2, &target->x, &target->hasX);
    TakeNumber(context, array, 5, &target->y, &target->hasY);
  } else if (is("FitH") || is("FitBH")) {
    TakeNumber(context, array, 2, &target->y, &target->hasY);
  } else if (is("FitV") || is("FitBV")) {
    TakeNumber(context, array, 2, &target->x, &target->hasX);
  }
}

void TakeDestination(fz_context* context, pdf_document* document, pdf_obj* destination,
                     RawTarget* target) {
  pdf_obj* array = destination;
  if (pdf_is_name(context, array) || pdf_is_string(context, array))
    array = pdf_lookup_dest(context, document, array);
  if (pdf_is_dict(context, array)) array = pdf_dict_get(context, array, PDF_NAME(D));
  pdf_obj* page = pdf_is_array(context, array) ? pdf_array_get(context, array, 0) : nullptr;
  if (page == nullptr) return;
  if (pdf_is_int(context, page)) {
    target->pageIndex = pdf_to_int(context, page);
  } else {
    target->pageObject = pdf_to_num(context, page);
  }
  target->kind = Kind::Page;
  TakePlace(context, array, target);
}

// The name of a file, which may be a text or a dictionary.
const char* FileName(fz_context* context, pdf_obj* file) {
  if (pdf_is_dict(context, file)) {
    pdf_obj* name = pdf_dict_get(context, file, PDF_NAME(UF));
    file = name != nullptr ? name : pdf_dict_get(context, file, PDF_NAME(F));
  }
  return pdf_is_string(context, file) ? pdf_to_text_string(context, file) : "";
}

void TakeAction(fz_context* context, pdf_document* document, pdf_obj* action, RawTarget* target) {
  const char* what = pdf_to_name(context, pdf_dict_get(context, action, PDF_NAME(S)));
  const auto is = [what](const char* name) { return std::strcmp(what, name) == 0; };
  if (is("GoTo")) {
    TakeDestination(context, document, pdf_dict_get(context, action, PDF_NAME(D)), target);
  } else if (is("URI")) {
    const char* address = pdf_to_text_string(context, pdf_dict_get(context, action, PDF_NAME(URI)));
    target->outside = address;
    target->kind = Kind::Web;
  } else if (is("GoToR") || is("GoToE")) {
    const char* name = FileName(context, pdf_dict_get(context, action, PDF_NAME(F)));
    target->outside = name;
    target->kind = Kind::File;
  } else if (is("Launch")) {
    const char* name = FileName(context, pdf_dict_get(context, action, PDF_NAME(F)));
    target->outside = name;
    target->kind = Kind::Program;
  } else if (is("JavaScript") || is("Rendition")) {
    target->kind = Kind::Script;
  } else if (*what != '\0') {
    target->kind = Kind::Other;
  }
}

}  // namespace

void ReadTarget(fz_context* context, pdf_document* document, pdf_obj* from, RawTarget* target) {
  pdf_obj* destination = pdf_dict_get(context, from, PDF_NAME(Dest));
  if (destination != nullptr) return TakeDestination(context, document, destination, target);
  pdf_obj* action = pdf_dict_get(context, from, PDF_NAME(A));
  if (action != nullptr) TakeAction(context, document, action, target);
}

}  // namespace tamo
