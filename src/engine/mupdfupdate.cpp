#include <algorithm>
#include <cstring>

#include "common/failure.h"
#include "engine/mupdffileinner.h"
#include "plans/filetail.h"

namespace tamo {
namespace {

// What the engine writes, collected in a byte array that outlives the try.
void CollectBytes(fz_context* /*context*/, void* state, const void* data, size_t size) {
  static_cast<QByteArray*>(state)->append(static_cast<const char*>(data),
                                          static_cast<qsizetype>(size));
}

void CollectEncrypted(fz_context* context, void* state, const unsigned char* data, size_t size) {
  CollectBytes(context, state, data, size);
}

struct SinkState {
  const EnginePlan::Sink* sink = nullptr;
  int error = 0;
  int64_t written = 0;
};

int64_t TellSink(fz_context* /*context*/, void* state) {
  return static_cast<SinkState*>(state)->written;
}

int Hand(SinkState* state, const void* data, size_t size) {
  if (state->error == 0) {
    state->error =
        (*state->sink)(QByteArray(static_cast<const char*>(data), static_cast<qsizetype>(size)));
  }
  state->written += static_cast<int64_t>(size);
  return state->error;
}

void WriteSink(fz_context* context, void* state, const void* data, size_t size) {
  if (Hand(static_cast<SinkState*>(state), data, size) != 0) {
    fz_throw(context, FZ_ERROR_GENERIC, "the plan can't be written");
  }
}

void PrintObject(fz_context* context, pdf_obj* object, pdf_crypt* crypt, int number, int generation,
                 QByteArray* text) {
  fz_output* out = fz_new_output(context, 1024, text, CollectBytes, nullptr, nullptr);
  fz_try(context) {
    pdf_print_encrypted_obj(context, out, object, 1, 0, crypt, number, generation);
    fz_close_output(context, out);
  }
  fz_always(context) fz_drop_output(context, out);
  fz_catch(context) fz_rethrow(context);
}

constexpr int kMostEntries = 10000;

}  // namespace

QByteArray ObjectText(fz_context* context, pdf_obj* object, pdf_crypt* crypt, int number,
                      int generation) {
  QByteArray text;
  fz_try(context) PrintObject(context, object, crypt, number, generation, &text);
  fz_catch(context) text.clear();
  return text;
}

// A damaged plan was only opened by repairing it: nothing can be appended to it.
bool MuPdfFile::Inner::NeedsRewrite() const {
  return document == nullptr || document->repair_attempted != 0;
}

// What the trailer repeats, and where the next addition begins.
bool MuPdfFile::Inner::ReadEnd() {
  if (end.size != 0) return true;
  bool good = true;
  fz_var(good);
  fz_try(context) {
    pdf_obj* trailer = pdf_trailer(context, document);
    for (pdf_obj* key : {PDF_NAME(Root), PDF_NAME(Info), PDF_NAME(ID), PDF_NAME(Encrypt)}) {
      pdf_obj* value = pdf_dict_get(context, trailer, key);
      if (value == nullptr) continue;
      end.trailer += '/';
      end.trailer += pdf_to_name(context, key);
      end.trailer += ' ';
      PrintObject(context, value, nullptr, 0, 0, &end.trailer);
    }
    end.nextObject = std::max(pdf_xref_len(context, document),
                              pdf_dict_get_int(context, trailer, PDF_NAME(Size)));
  }
  fz_catch(context) good = false;
  end.startXref = document->startxref;
  end.size = source->Size();
  const QByteArray part = ReadPart(*source->Reader(), end.startXref, 32).trimmed();
  end.xrefStream = !part.startsWith("xref");
  if (end.xrefStream && (part.isEmpty() || part[0] < '0' || part[0] > '9')) good = false;
  if (!good || end.nextObject < 1) end = {};
  return end.size != 0;
}

// Reads once what a save has to repeat of a page.
bool MuPdfFile::Inner::ReadPage(PageRecord& page) {
  if (page.read) return true;
  page.read = ReadPageBytes(page);
  if (page.read) return true;
  page.entries.clear();
  page.others.clear();
  page.read = PrintPage(page);
  return page.read;
}

// The same as the engine writes it, when the file's own bytes are of no use.
bool MuPdfFile::Inner::PrintPage(PageRecord& page) {
  pdf_obj* object = nullptr;
  bool good = true;
  fz_var(object);
  fz_var(good);
  fz_try(context) {
    object = pdf_load_object(context, document, page.object);
    const int count = std::min(pdf_dict_len(context, object), kMostEntries);
    for (int i = 0; i < count; ++i) {
      pdf_obj* key = pdf_dict_get_key(context, object, i);
      if (pdf_name_eq(context, key, PDF_NAME(Annots))) continue;
      PrintObject(context, key, nullptr, 0, 0, &page.entries);
      page.entries += ' ';
      PrintObject(context, pdf_dict_get_val(context, object, i), document->crypt, page.object,
                  page.generation, &page.entries);
    }
    pdf_obj* annotations = pdf_dict_get(context, object, PDF_NAME(Annots));
    const int others = pdf_array_len(context, annotations);
    for (int i = 0; i < others; ++i) {
      pdf_obj* annotation = pdf_array_get(context, annotations, i);
      if (pdf_is_indirect(context, annotation) && IsOwnMark(context, annotation)) continue;
      PrintObject(context, annotation, document->crypt, page.object, page.generation, &page.others);
      page.others += ' ';
    }
  }
  fz_always(context) pdf_drop_obj(context, object);
  fz_catch(context) good = false;
  if (good && !page.entries.isEmpty()) return true;
  page.entries.clear();
  page.others.clear();
  return false;
}

QByteArray MuPdfFile::Inner::PageBody(const PageRecord& page) const {
  QByteArray list = page.others;
  for (const FileMark& mark : page.own) {
    list += QByteArray::number(mark.object) + ' ' + QByteArray::number(mark.generation) + " R ";
  }
  return "<<" + page.entries + (list.isEmpty() ? QByteArray() : "/Annots[" + list.trimmed() + ']') +
         ">>";
}

// In an encrypted plan the texts of a new object have to be encrypted as all others are.
bool MuPdfFile::Inner::Encrypted(PdfObject& object) {
  if (document->crypt == nullptr) return true;
  fz_stream* stream = nullptr;
  pdf_obj* parsed = nullptr;
  pdf_lexbuf buffer;
  QByteArray text;
  bool good = true;
  fz_var(good);
  fz_var(stream);
  fz_var(parsed);
  pdf_lexbuf_init(context, &buffer, PDF_LEXBUF_SMALL);
  fz_try(context) {
    stream =
        fz_open_memory(context, reinterpret_cast<const unsigned char*>(object.body.constData()),
                       static_cast<size_t>(object.body.size()));
    parsed = pdf_parse_stm_obj(context, document, stream, &buffer);
    PrintObject(context, parsed, document->crypt, object.number, object.generation, &text);
  }
  fz_always(context) {
    pdf_drop_obj(context, parsed);
    fz_drop_stream(context, stream);
    pdf_lexbuf_fin(context, &buffer);
  }
  fz_catch(context) good = false;
  object.body = text;
  return good;
}

bool MuPdfFile::Inner::EncryptedStream(PdfObject& object, const QByteArray& entries,
                                       const QByteArray& content) {
  QByteArray data = content;
  bool good = true;
  fz_var(good);
  if (document->crypt != nullptr) {
    data.clear();
    fz_try(context) {
      pdf_encrypt_data(context, document->crypt, object.number, object.generation, CollectEncrypted,
                       &data, reinterpret_cast<const unsigned char*>(content.constData()),
                       static_cast<size_t>(content.size()));
    }
    fz_catch(context) good = false;
  }
  object.body = "<<" + entries + "/Length " + QByteArray::number(data.size()) + ">>\nstream\n" +
                data + "\nendstream";
  return good;
}

PlanUpdate MuPdfFile::BuildUpdate(const MarkChanges& changes) {
  Inner& inner = *inner_;
  PlanUpdate update;
  update.error = kFileOther;
  update.needsRewrite = inner.NeedsRewrite();
  update.problem = QStringLiteral("it is too damaged to hold marks");
  if (update.needsRewrite || !inner.ReadEnd()) return update;
  inner.endBefore = inner.end;
  inner.ownBefore.clear();
  for (const PageRecord& page : inner.pages) inner.ownBefore.push_back(page.own);
  std::vector<PdfObject> objects;
  if (!inner.Change(changes, objects)) {
    ForgetUpdate();
    return update;
  }
  if (!objects.empty()) update.bytes = PdfAddition(objects, inner.end);
  update.error = kNoError;
  update.problem.clear();
  return update;
}

void MuPdfFile::ForgetUpdate() {
  Inner& inner = *inner_;
  inner.end = inner.endBefore;
  for (size_t i = 0; i < inner.ownBefore.size() && i < inner.pages.size(); ++i) {
    inner.pages[i].own = inner.ownBefore[i];
  }
}

// What opens a protected plan is not encrypted itself. The engine forgets that of a plan it has
// repaired when it stands in an object apart, so it goes into the trailer as it was read.
static void KeepProtection(fz_context* context, pdf_document* document) {
  pdf_obj* trailer = pdf_trailer(context, document);
  pdf_obj* read = pdf_dict_get(context, trailer, PDF_NAME(Encrypt));
  pdf_crypt* crypt = document->crypt;
  if (crypt == nullptr || read == nullptr) return;
  pdf_obj* opens = pdf_copy_dict(context, read);
  const auto put = [&](pdf_obj* key, const unsigned char* bytes, size_t size) {
    pdf_dict_put_string(context, opens, key, reinterpret_cast<const char*>(bytes), size);
  };
  fz_try(context) {
    const bool modern = pdf_crypt_revision(context, crypt) >= 5;
    put(PDF_NAME(O), pdf_crypt_owner_password(context, crypt), modern ? 48 : 32);
    put(PDF_NAME(U), pdf_crypt_user_password(context, crypt), modern ? 48 : 32);
    if (modern) {
      put(PDF_NAME(OE), pdf_crypt_owner_encryption(context, crypt), 32);
      put(PDF_NAME(UE), pdf_crypt_user_encryption(context, crypt), 32);
      put(PDF_NAME(Perms), pdf_crypt_permissions_encryption(context, crypt), 16);
    }
    pdf_dict_put(context, trailer, PDF_NAME(Encrypt), opens);
  }
  fz_always(context) pdf_drop_obj(context, opens);
  fz_catch(context) fz_rethrow(context);
}

int MuPdfFile::WriteWhole(const EnginePlan::Sink& sink, QString& problem) {
  fz_context* context = inner_->context;
  SinkState state;
  state.sink = &sink;
  pdf_write_options options = pdf_default_write_options;
  fz_output* out = nullptr;
  bool good = true;
  fz_var(good);
  fz_var(out);
  fz_try(context) {
    out = fz_new_output(context, 65536, &state, WriteSink, nullptr, nullptr);
    out->tell = TellSink;
    KeepProtection(context, inner_->document);
    pdf_write_document(context, inner_->document, out, &options);
    fz_close_output(context, out);
  }
  fz_always(context) fz_drop_output(context, out);
  fz_catch(context) good = false;
  if (state.error != 0) return state.error;
  if (!good) problem = QStringLiteral("it is too damaged to be written anew");
  return good ? kNoError : kFileOther;
}

}  // namespace tamo
