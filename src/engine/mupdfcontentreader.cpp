#include "engine/mupdfcontentreader.h"

#include <utility>

#include "common/failure.h"
#include "common/files.h"
#include "engine/mupdfcontentdevice.h"
#include "engine/mupdfcontentdocument.h"
#include "engine/mupdfcontexts.h"
#include "engine/mupdflayers.h"
#include "engine/mupdfpagetree.h"
#include "engine/mupdfrunpage.h"

namespace tamo {
namespace {

constexpr unsigned kKeptOfStore = 25;  // per cent

// A file that ends when the reading is cancelled, so that the engine never reads on for nothing.
class CancellableReader : public FileReader {
 public:
  explicit CancellableReader(std::shared_ptr<FileReader> file) : file_(std::move(file)) {}
  void SetCancel(const std::atomic<bool>* cancel) { cancel_ = cancel; }
  qint64 Size() const override { return file_->Size(); }
  int ReadAt(qint64 offset, char* into, qint64 count, qint64& got) const override {
    const std::atomic<bool>* cancel = cancel_;
    if (cancel != nullptr && *cancel) return kFileOther;
    return file_->ReadAt(offset, into, count, got);
  }

 private:
  std::shared_ptr<FileReader> file_;
  std::atomic<const std::atomic<bool>*> cancel_ = nullptr;
};

// The document, and the page that is being read.
struct Reading {
  fz_context* context = nullptr;
  pdf_document* document = nullptr;
  pdf_page* page = nullptr;
  fz_rect bounds = fz_empty_rect;
  bool locked = false;
  fz_cookie cookie{};
};

bool OpenDocument(Reading& reading, const std::shared_ptr<MuPdfContexts>& contexts,
                  const std::shared_ptr<PlanSource>& source, const char* password) {
  if (reading.document != nullptr) return true;
  fz_context* context = reading.context;
  fz_stream* stream = nullptr;
  bool good = true;
  fz_var(stream);
  fz_var(good);
  fz_try(context) {
    stream = NewPlanStream(context, contexts, source);
    reading.document = pdf_open_document_with_stream(context, stream);
    reading.locked = pdf_needs_password(context, reading.document) &&
                     pdf_authenticate_password(context, reading.document, password) == 0;
    if (!reading.locked) FlattenPageTree(context, reading.document);
  }
  fz_always(context) fz_drop_stream(context, stream);
  fz_catch(context) good = false;
  return good && !reading.locked;
}

bool OpenPage(Reading& reading, int index) {
  fz_context* context = reading.context;
  bool good = true;
  fz_var(good);
  fz_try(context) {
    reading.page = pdf_load_page(context, reading.document, index);
    reading.bounds = pdf_bound_page(context, reading.page);
  }
  fz_catch(context) good = false;
  return good;
}

bool GatherPage(Reading& reading, ContentGatherer& gatherer, bool textsOnly) {
  fz_context* context = reading.context;
  fz_device* device = nullptr;
  bool good = true;
  fz_var(device);
  fz_var(good);
  fz_try(context) {
    device = gatherer.NewDevice(context, textsOnly);
    RunPage(context, reading.page, device, &reading.cookie);
    fz_close_device(context, device);
  }
  fz_always(context) fz_drop_device(context, device);
  fz_catch(context) good = false;
  return good;
}

void Gather(Reading& reading, PageContent& content, bool textsOnly,
            const std::atomic<bool>* cancel) {
  const fz_rect& bounds = reading.bounds;
  content.size = {bounds.x1 - bounds.x0, bounds.y1 - bounds.y0};
  const PageBox visible = {bounds.x0, bounds.y0, bounds.x1, bounds.y1};
  ContentGatherer gatherer(content, visible, cancel, reading.cookie);
  const bool good = GatherPage(reading, gatherer, textsOnly);
  const fz_cookie& cookie = reading.cookie;
  content.whole = good && cookie.abort == 0 && cookie.errors == 0 && cookie.incomplete == 0;
  if (content.whole || !content.problem.isEmpty()) return;
  content.problem = cookie.abort != 0 ? QStringLiteral("the reading was stopped")
                                      : QStringLiteral("parts of the page are damaged");
}

void ClosePage(Reading& reading) {
  fz_drop_page(reading.context, reading.page == nullptr ? nullptr : &reading.page->super);
  reading.page = nullptr;
  reading.cookie = {};
}

}  // namespace

struct MuPdfContentDocument::Inner {
  std::shared_ptr<MuPdfContexts> contexts = MuPdfContexts::Make();
  std::shared_ptr<CancellableReader> file;
  std::shared_ptr<PlanSource> source;
  QByteArray password;
  std::vector<bool> layers;  // as they were last shown
  Reading reading;

  void Forget() {
    pdf_drop_document(reading.context, reading.document);
    reading.document = nullptr;
  }
};

MuPdfContentDocument::MuPdfContentDocument(std::shared_ptr<FileReader> file, qint64 size,
                                           const QByteArray& password)
    : inner_(std::make_unique<Inner>()) {
  inner_->file = std::make_shared<CancellableReader>(std::move(file));
  inner_->source = std::make_shared<PlanSource>(inner_->file, size);
  inner_->password = password;
  if (inner_->contexts != nullptr) inner_->reading.context = inner_->contexts->NewContext();
}

MuPdfContentDocument::~MuPdfContentDocument() {
  if (inner_->reading.context == nullptr) return;
  inner_->Forget();
  MuPdfContexts::DropContext(inner_->reading.context);
}

PageContent MuPdfContentDocument::Read(int page, const std::atomic<bool>* cancel) {
  return Read(page, false, cancel);
}

PageContent MuPdfContentDocument::ReadTexts(int page, const std::atomic<bool>* cancel) {
  PageContent content = Read(page, true, cancel);
  // Sheets are read one after the other for their texts: what they share stays, the rest goes.
  if (inner_->reading.context != nullptr) fz_shrink_store(inner_->reading.context, kKeptOfStore);
  return content;
}

bool MuPdfContentDocument::ShowLayers(const std::vector<bool>& shown) {
  inner_->layers = shown;
  const Reading& reading = inner_->reading;
  return reading.document == nullptr || ShowLayersOf(reading.context, reading.document, shown);
}

PageContent MuPdfContentDocument::Read(int page, bool textsOnly, const std::atomic<bool>* cancel) {
  PageContent content;
  content.error = kFileOther;
  Reading& reading = inner_->reading;
  if (reading.context == nullptr) {
    content.problem = QStringLiteral("there is not enough memory");
    return content;
  }
  inner_->file->SetCancel(cancel);
  const bool anew = reading.document == nullptr;
  const bool open =
      OpenDocument(reading, inner_->contexts, inner_->source, inner_->password.constData());
  if (open && anew && !inner_->layers.empty())
    ShowLayersOf(reading.context, reading.document, inner_->layers);
  if (open && OpenPage(reading, page - 1)) {
    content.error = kNoError;
    Gather(reading, content, textsOnly, cancel);
  } else {
    content.problem = reading.locked ? QStringLiteral("it is locked with a password")
                                     : QStringLiteral("the page is not there or damaged");
  }
  ClosePage(reading);
  inner_->file->SetCancel(nullptr);
  if (!open || (cancel != nullptr && *cancel) || inner_->contexts->ForgetsObjects())
    inner_->Forget();
  return content;
}

PageContent ReadPageContent(std::shared_ptr<FileReader> file, int page, const QByteArray& password,
                            const std::atomic<bool>* cancel) {
  const qint64 size = file->Size();
  return MuPdfContentDocument(std::move(file), size, password).Read(page, cancel);
}

PageContent ReadPageContent(Disk& disk, const QString& path, int page, const QByteArray& password,
                            const std::atomic<bool>* cancel) {
  std::shared_ptr<FileReader> file;
  PageContent content;
  content.error = disk.OpenToRead(path, file);
  if (content.error == kNoError) return ReadPageContent(std::move(file), page, password, cancel);
  content.problem = ReasonText(content.error);
  return content;
}

}  // namespace tamo
