#include <algorithm>

#include "engine/mupdffileinner.h"
#include "plans/filetail.h"
#include "plans/pdfbytes.h"

// What a save repeats of a page, taken from the file's own bytes: the engine would write names and
// numbers its own way.

namespace tamo {
namespace {

constexpr qint64 kFirstReach = qint64(1) << 14;
constexpr qint64 kLongestPage = qint64(1) << 24;

// Where an object stands: in the file itself, or packed into a stream of objects.
struct Place {
  bool packed = false;
  int64_t at = 0;  // in the file, or the number of the stream
};

bool FindPlace(fz_context* context, pdf_document* document, int number, Place* place) {
  bool good = false;
  fz_var(good);
  fz_try(context) {
    const pdf_xref_entry* entry = pdf_get_xref_entry(context, document, number);
    place->packed = entry->type == 'o';
    place->at = entry->ofs;
    good = place->packed || (entry->type == 'n' && entry->ofs > 0);
  }
  fz_catch(context) good = false;
  return good;
}

// The bytes of a stream of objects and where its first object begins.
bool LoadPacked(fz_context* context, pdf_document* document, int stream, QByteArray* bytes,
                int* first) {
  fz_buffer* buffer = nullptr;
  pdf_obj* object = nullptr;
  bool good = true;
  fz_var(buffer);
  fz_var(object);
  fz_var(good);
  fz_try(context) {
    object = pdf_load_object(context, document, stream);
    *first = pdf_dict_get_int(context, object, PDF_NAME(First));
    buffer = pdf_load_stream_number(context, document, stream);
    unsigned char* data = nullptr;
    const size_t size = fz_buffer_storage(context, buffer, &data);
    bytes->append(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  }
  fz_always(context) {
    fz_drop_buffer(context, buffer);
    pdf_drop_obj(context, object);
  }
  fz_catch(context) good = false;
  return good;
}

QByteArray Unpacked(fz_context* context, pdf_document* document, int stream, int number) {
  QByteArray bytes;
  int first = 0;
  if (!LoadPacked(context, document, stream, &bytes, &first)) return {};
  const QList<QByteArray> head = bytes.left(first).simplified().split(' ');
  for (qsizetype i = 0; i + 1 < head.size(); i += 2) {
    if (head[i].toInt() == number) return bytes.mid(first + head[i + 1].toInt());
  }
  return {};
}

bool Whole(const QByteArray& text) {
  std::vector<QByteArray> elements;
  return !EntriesOf(text).empty() || ElementsOf(text, elements);
}

// An object as it stands in the file: at least all of it when it is whole.
QByteArray BytesAt(const FileReader& file, int64_t at, int number) {
  QByteArray text;
  for (qint64 reach = kFirstReach; reach <= kLongestPage; reach *= 32) {
    text = BehindObjectHead(ReadPart(file, at, std::min(reach, file.Size() - at)), number);
    if (text.isEmpty() || Whole(text)) break;
  }
  return text;
}

bool RefersToOwnMark(fz_context* context, pdf_document* document, int number) {
  pdf_obj* object = nullptr;
  bool own = false;
  fz_var(object);
  fz_var(own);
  fz_try(context) {
    object = pdf_load_object(context, document, number);
    own = IsOwnMark(context, object);
  }
  fz_always(context) pdf_drop_obj(context, object);
  fz_catch(context) own = false;
  return own;
}

}  // namespace

// The strings of a packed object are not encrypted one by one, those of the file are, each for its
// own object: what can't be repeated as it stands gives nothing.
QByteArray MuPdfFile::Inner::ObjectBytes(int number, int into) {
  Place place;
  if (number <= 0 || !FindPlace(context, document, number, &place)) return {};
  const QByteArray text = place.packed
                              ? Unpacked(context, document, static_cast<int>(place.at), number)
                              : BytesAt(*source->Reader(), place.at, number);
  const bool moved = place.packed || number != into;
  return document->crypt != nullptr && moved && MayHoldStrings(text) ? QByteArray() : text;
}

bool MuPdfFile::Inner::ReadOthers(PageRecord& page, QByteArray annotations) {
  if (const int number = ReferenceIn(annotations)) annotations = ObjectBytes(number, page.object);
  std::vector<QByteArray> elements;
  if (!ElementsOf(annotations, elements)) return false;
  for (const QByteArray& element : elements) {
    const int number = ReferenceIn(element);
    if (number > 0 && RefersToOwnMark(context, document, number)) continue;
    page.others += element + ' ';
  }
  return true;
}

bool MuPdfFile::Inner::ReadPageBytes(PageRecord& page) {
  const std::vector<PdfEntry> entries = EntriesOf(ObjectBytes(page.object, page.object));
  QByteArray annotations;
  for (const PdfEntry& entry : entries) {
    if (entry.key == "/Annots") {
      annotations = entry.value;
    } else {
      page.entries += entry.whole + ' ';
    }
  }
  return !page.entries.isEmpty() && (annotations.isEmpty() || ReadOthers(page, annotations));
}

}  // namespace tamo
