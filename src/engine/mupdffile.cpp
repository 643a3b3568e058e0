#include "engine/mupdffile.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "engine/mupdffileinner.h"
#include "engine/mupdfpagetree.h"
#include "plans/filetail.h"

namespace tamo {
namespace {

constexpr int kMostAnnotations = 200000;  // of one page

void TakePage(fz_context* context, pdf_obj* page, void* pages) {
  PageRecord record;
  record.object = pdf_to_num(context, page);
  record.generation = pdf_to_gen(context, page);
  static_cast<std::vector<PageRecord>*>(pages)->push_back(record);
}

// Where the page lies and how large it is, as the engine shows it.
bool PlacePage(fz_context* context, pdf_document* document, int object, fz_matrix* map,
               fz_rect* size) {
  pdf_obj* page = nullptr;
  fz_rect box = fz_empty_rect;
  bool good = true;
  fz_var(page);
  fz_var(good);
  fz_try(context) {
    page = pdf_load_object(context, document, object);
    pdf_page_obj_transform(context, page, &box, map);
    *size = fz_transform_rect(box, *map);
  }
  fz_always(context) pdf_drop_obj(context, page);
  fz_catch(context) good = false;
  return good;
}

struct RawMark {
  int object = 0;
  Mark::Kind kind = Mark::Kind::Line;
  std::vector<float> numbers;  // its places; a circle's rectangle
  float colour[3] = {0, 0, 0};
  float width = 1;
  const char* name = nullptr;
  const char* label = nullptr;
  const char* subject = nullptr;
  const char* group = nullptr;
  const char* title = nullptr;
  const char* kept = nullptr;
  int generation = 0;
};

void ReadFloats(fz_context* context, pdf_obj* array, float* into, int count) {
  for (int i = 0; i < count; ++i) into[i] = pdf_array_get_real(context, array, i);
}

struct AnnotationKind {
  pdf_obj* subtype;
  Mark::Kind kind;
  pdf_obj* places;  // the key of its places
};

// The kinds of annotations that marks are kept as. A polygon's subject tells which outline it is.
const AnnotationKind* KindOf(fz_context* context, pdf_obj* annotation) {
  static const AnnotationKind kinds[] = {
      {PDF_NAME(Line), Mark::Kind::Line, PDF_NAME(L)},
      {PDF_NAME(Circle), Mark::Kind::Circle, PDF_NAME(Rect)},
      {PDF_NAME(PolyLine), Mark::Kind::Polyline, PDF_NAME(Vertices)},
      {PDF_NAME(Polygon), Mark::Kind::Area, PDF_NAME(Vertices)},
      {PDF_NAME(FreeText), Mark::Kind::Legend, PDF_NAME(Rect)}};
  pdf_obj* subtype = pdf_dict_get(context, annotation, PDF_NAME(Subtype));
  for (const AnnotationKind& known : kinds) {
    if (pdf_name_eq(context, subtype, known.subtype)) return &known;
  }
  return nullptr;
}

// Its places are numbers, as many as the kind has. Anything else is left alone, as an annotation of
// another program is.
bool HasPlaces(fz_context* context, pdf_obj* annotation, const AnnotationKind& kind) {
  pdf_obj* places = pdf_dict_get(context, annotation, kind.places);
  const int count = pdf_array_len(context, places);
  for (int i = 0; i < std::min(count, 2 * static_cast<int>(kMostMarkPoints)); ++i) {
    if (!pdf_is_number(context, pdf_array_get(context, places, i))) return false;
  }
  if (kind.kind == Mark::Kind::Line || pdf_name_eq(context, kind.places, PDF_NAME(Rect)))
    return count == 4;
  return count % 2 == 0 && FitsKind(kind.kind, static_cast<size_t>(count / 2));
}

// Reads annotation `index` of the array into `mark`; false when it is none of ours.
bool ReadRaw(fz_context* context, pdf_obj* annotations, int index, RawMark* mark) {
  pdf_obj* annotation = pdf_array_get(context, annotations, index);
  if (!pdf_is_indirect(context, annotation) || !IsOwnMark(context, annotation)) return false;
  const AnnotationKind* kind = KindOf(context, annotation);
  if (kind == nullptr) return false;
  mark->object = pdf_to_num(context, annotation);
  mark->generation = pdf_to_gen(context, annotation);
  mark->kind = kind->kind;
  pdf_obj* places = pdf_dict_get(context, annotation, kind->places);
  const int count = pdf_array_len(context, places);
  mark->numbers.resize(static_cast<size_t>(count));
  ReadFloats(context, places, mark->numbers.data(), count);
  ReadFloats(context, pdf_dict_get(context, annotation, PDF_NAME(C)), mark->colour, 3);
  pdf_obj* border = pdf_dict_get(context, annotation, PDF_NAME(BS));
  if (border != nullptr) mark->width = pdf_dict_get_real(context, border, PDF_NAME(W));
  mark->name = pdf_to_text_string(context, pdf_dict_gets(context, annotation, "NM"));
  mark->label = pdf_dict_get_text_string(context, annotation, PDF_NAME(Contents));
  mark->subject = pdf_to_text_string(context, pdf_dict_gets(context, annotation, "Subj"));
  mark->group = pdf_to_text_string(context, pdf_dict_gets(context, annotation, kGroupKey));
  mark->title = pdf_to_text_string(context, pdf_dict_gets(context, annotation, kTitleKey));
  mark->kept = pdf_to_text_string(context, pdf_dict_gets(context, annotation, kKeptKey));
  return true;
}

bool ReadAnnotation(fz_context* context, pdf_obj* annotations, int index, RawMark* mark) {
  bool ours = false;
  fz_var(ours);
  fz_try(context) ours = ReadRaw(context, annotations, index, mark);
  fz_catch(context) ours = false;
  return ours;
}

QString ColourCode(const float* parts) {
  QString code;
  for (int i = 0; i < 3; ++i) {
    const int part = static_cast<int>(std::lround(std::clamp(parts[i], 0.0F, 1.0F) * 255));
    code += QStringLiteral("%1").arg(part, 3, 10, QLatin1Char('0'));
  }
  return code;
}

Mark AsMark(const RawMark& raw, const PageMap& map) {
  Mark mark;
  mark.kind = raw.kind;
  mark.name = QString::fromUtf8(raw.name);
  mark.colour = ColourCode(raw.colour);
  mark.width = raw.width * map.Unit();
  mark.group = QString::fromUtf8(raw.group);
  mark.title = QString::fromUtf8(raw.title);
  if (strlen(raw.kept) <= kLongestKept) mark.kept = QString::fromUtf8(raw.kept);
  const std::vector<float>& numbers = raw.numbers;
  if (raw.kind == Mark::Kind::Circle) {
    mark.points = {map.ToPage((numbers[0] + numbers[2]) / 2, (numbers[1] + numbers[3]) / 2)};
    if (mark.group.isEmpty()) return mark;
    mark.kind = Mark::Kind::Grouped;
    mark.label = QString::fromUtf8(raw.label);
    return mark;
  }
  if (raw.kind == Mark::Kind::Legend && !mark.group.isEmpty()) {
    mark.kind = Mark::Kind::Total;
    mark.label = QString::fromUtf8(raw.label);
    const PagePoint a = map.ToPage(numbers[0], numbers[1]);
    const PagePoint b = map.ToPage(numbers[2], numbers[3]);
    mark.points = {{std::min(a.x, b.x), std::max(a.y, b.y) - kTotalBelow}};
    return mark;
  }
  if (raw.kind == Mark::Kind::Legend) {
    const PagePoint one = map.ToPage(numbers[0], numbers[1]);
    const PagePoint other = map.ToPage(numbers[2], numbers[3]);
    mark.label = QString::fromUtf8(raw.label);
    mark.points = {{std::min(one.x, other.x), std::min(one.y, other.y)}};
    return mark;
  }
  if (raw.kind == Mark::Kind::Area) mark.kind = OutlineOfSubject(QString::fromUtf8(raw.subject));
  mark.label = QString::fromUtf8(raw.label);
  for (size_t i = 0; i + 1 < numbers.size(); i += 2)
    mark.points.push_back(map.ToPage(numbers[i], numbers[i + 1]));
  return mark;
}

}  // namespace

bool IsOwnMark(fz_context* context, pdf_obj* annotation) {
  bool own = false;
  fz_var(own);
  fz_try(context) {
    const AnnotationKind* kind = KindOf(context, annotation);
    if (kind != nullptr) {
      const char* name = pdf_to_text_string(context, pdf_dict_gets(context, annotation, "NM"));
      own = strncmp(name, kMarkPrefix, sizeof kMarkPrefix - 1) == 0 &&
            HasPlaces(context, annotation, *kind);
    }
  }
  fz_catch(context) own = false;
  return own;
}

// Why the engine could not open a plan; to be called where its failure was caught.
static QString OpenFailure(fz_context* context) {
  if (fz_caught(context) == FZ_ERROR_MEMORY) return QStringLiteral("it needs too much memory");
  const QByteArray words(fz_caught_message(context));
  if (words.contains("PubSec"))
    return QStringLiteral("it is protected with a certificate: only those it was made for open it");
  if (words.contains("unknown encryption") || words.contains("unknown crypt"))
    return QStringLiteral("it is protected in a way that this program does not know");
  return QStringLiteral("it is damaged or no PDF");
}

MuPdfFile::MuPdfFile(fz_context* context, std::shared_ptr<MuPdfContexts> contexts,
                     std::shared_ptr<PlanSource> source)
    : inner_(std::make_unique<Inner>()) {
  inner_->context = context;
  inner_->contexts = std::move(contexts);
  inner_->source = std::move(source);
}

MuPdfFile::~MuPdfFile() {
  pdf_drop_document(inner_->context, inner_->document);
}

bool MuPdfFile::Inner::OpenDocument(const QByteArray& password, PlanContents& contents) {
  fz_stream* stream = nullptr;
  bool locked = false;
  bool good = true;
  fz_var(good);
  fz_var(locked);
  fz_var(stream);
  fz_try(context) {
    stream = NewPlanStream(context, contexts, source);
    document = pdf_open_document_with_stream(context, stream);
    if (pdf_needs_password(context, document)) {
      locked = pdf_authenticate_password(context, document, password.constData()) == 0;
    }
  }
  fz_always(context) fz_drop_stream(context, stream);
  fz_catch(context) good = false;
  contents.wantsPassword = locked;
  if (locked) {
    contents.problem = QStringLiteral("it is locked with a password");
  } else if (!good) {
    contents.problem = OpenFailure(context);
  }
  return good && !locked;
}

void MuPdfFile::Inner::ReadPages() {
  WalkPages(context, document, TakePage, &pages);
  std::map<int, size_t> homes;
  for (size_t i = 0; i < pages.size(); ++i) {
    const int object = pages[i].object;
    pages[i].home = object > 0 ? homes.try_emplace(object, i).first->second : i;
  }
  for (PageRecord& page : pages) {
    fz_matrix map = fz_identity;
    fz_rect size = fz_empty_rect;
    if (!PlacePage(context, document, page.object, &map, &size)) continue;
    page.map = {map.a, map.b, map.c, map.d, map.e, map.f};
    const double width = size.x1 - size.x0;
    const double height = size.y1 - size.y0;
    // What is no size a sheet can have stays a letter sheet.
    if (width >= 1 && height >= 1 && width < 1e7 && height < 1e7) page.size = {width, height};
  }
}

void MuPdfFile::Inner::ReadMarks(size_t index, std::vector<Mark>& marks, QSet<QString>& names) {
  PageRecord& page = pages[index];
  if (page.home != index) return;
  pdf_obj* object = nullptr;
  pdf_obj* annotations = nullptr;
  int count = 0;
  fz_var(object);
  fz_var(annotations);
  fz_var(count);
  fz_try(context) {
    object = pdf_load_object(context, document, page.object);
    annotations = pdf_dict_get(context, object, PDF_NAME(Annots));
    count = std::min(pdf_array_len(context, annotations), kMostAnnotations);
  }
  fz_catch(context) count = 0;
  for (int i = 0; i < count; ++i) {
    RawMark raw;
    if (!ReadAnnotation(context, annotations, i, &raw)) continue;
    Mark mark = AsMark(raw, page.map);
    BringToBounds(mark);
    mark.page = static_cast<int>(index) + 1;
    // A copy made by another program; it needs a name of its own to be deleted alone.
    if (names.contains(mark.name)) mark.name += QStringLiteral("#%1").arg(raw.object);
    names.insert(mark.name);
    page.own.push_back({mark.name, raw.object, raw.generation});
    marks.push_back(std::move(mark));
  }
  pdf_drop_obj(context, object);
}

PlanContents MuPdfFile::Open(const QString& password) {
  PlanContents contents;
  const QByteArray start = ReadPart(*inner_->source->Reader(), 0, 1024);
  if (inner_->source->Size() == 0) {
    contents.problem = QStringLiteral("it is empty");
  } else if (!start.contains("%PDF") && !start.contains("%!PS-Adobe")) {
    contents.problem = QStringLiteral("it is no PDF");
  } else if (inner_->OpenDocument(password.toUtf8(), contents)) {
    inner_->ReadPages();
    if (inner_->pages.empty()) contents.problem = QStringLiteral("it has no pages");
  }
  if (!contents.problem.isEmpty()) {
    contents.error = 57;
    return contents;
  }
  QSet<QString> names;
  for (size_t i = 0; i < inner_->pages.size(); ++i) {
    contents.sizes.push_back(inner_->pages[i].size);
    inner_->ReadMarks(i, contents.marks, names);
  }
  // Who has marked it before was asked then.
  if (contents.marks.empty()) contents.reservation = inner_->Reservation();
  contents.caution = inner_->Caution();
  std::stable_sort(contents.marks.begin(), contents.marks.end(), [](const Mark& a, const Mark& b) {
    return MarkNumber(a.name) < MarkNumber(b.name);
  });
  return contents;
}

}  // namespace tamo
