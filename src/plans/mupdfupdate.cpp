#include <algorithm>
#include <cstring>

#include "plans/filetail.h"
#include "plans/mupdffileinner.h"

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
  const std::function<int(const QByteArray&)>* sink = nullptr;
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

bool MuPdfFile::NeedsRewrite() const {
  const Inner& inner = *inner_;
  return inner.document == nullptr || inner.document->repair_attempted != 0;
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
  page.read = good && !page.entries.isEmpty();
  if (!page.read) {
    page.entries.clear();
    page.others.clear();
  }
  return page.read;
}

QByteArray MuPdfFile::Inner::PageBody(const PageRecord& page) const {
  QByteArray list = page.others;
  for (const FileMark& mark : page.own) list += QByteArray::number(mark.object) + " 0 R ";
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

int MuPdfFile::Addition(const MarkChanges& changes, QByteArray& bytes, QString& problem) {
  Inner& inner = *inner_;
  problem = QStringLiteral("it is too damaged to hold marks");
  if (NeedsRewrite() || !inner.ReadEnd()) return 57;
  inner.endBefore = inner.end;
  inner.ownBefore.clear();
  for (const PageRecord& page : inner.pages) inner.ownBefore.push_back(page.own);

  std::vector<PdfObject> objects;
  std::vector<bool> touched(inner.pages.size(), false);
  for (size_t i = 0; i < inner.pages.size() && !changes.removed.isEmpty(); ++i) {
    const auto gone = std::erase_if(inner.pages[i].own, [&](const FileMark& mark) {
      return changes.removed.contains(mark.name);
    });
    touched[i] = gone > 0;
  }
  bool good = true;
  int next = inner.end.nextObject;
  for (const Mark& mark : changes.added) {
    const auto index = static_cast<size_t>(mark.page - 1);
    if (index >= inner.pages.size() || inner.pages[index].object <= 0) {
      good = false;
      continue;
    }
    PageRecord& page = inner.pages[index];
    const MarkObjects parts = MarkAsPdf(mark, changes.markerSize, page.map);
    PdfObject form{next++, 0, {}};
    good = inner.EncryptedStream(form, parts.formEntries, parts.formContent) && good;
    const QByteArray pageRef =
        QByteArray::number(page.object) + ' ' + QByteArray::number(page.generation) + " R";
    PdfObject annotation{next++, 0, MarkAnnotation(parts, pageRef, form.number)};
    good = inner.Encrypted(annotation) && good;
    page.own.push_back({mark.name, annotation.number});
    touched[index] = true;
    objects.push_back(std::move(form));
    objects.push_back(std::move(annotation));
  }
  for (size_t i = 0; i < inner.pages.size(); ++i) {
    if (!touched[i]) continue;
    good = inner.ReadPage(inner.pages[i]) && good;
    const PageRecord& page = inner.pages[i];
    objects.push_back({page.object, page.generation, inner.PageBody(page)});
  }
  if (!good) {
    ForgetAddition();
    return 57;
  }
  bytes = objects.empty() ? QByteArray() : PdfAddition(objects, inner.end);
  problem.clear();
  return 0;
}

void MuPdfFile::ForgetAddition() {
  Inner& inner = *inner_;
  inner.end = inner.endBefore;
  for (size_t i = 0; i < inner.ownBefore.size() && i < inner.pages.size(); ++i) {
    inner.pages[i].own = inner.ownBefore[i];
  }
}

int MuPdfFile::Rewrite(const std::function<int(const QByteArray&)>& sink, QString& problem) {
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
    pdf_write_document(context, inner_->document, out, &options);
    fz_close_output(context, out);
  }
  fz_always(context) fz_drop_output(context, out);
  fz_catch(context) good = false;
  if (state.error != 0) return state.error;
  if (!good) problem = QStringLiteral("it is too damaged to be written anew");
  return good ? 0 : 57;
}

}  // namespace tamo
