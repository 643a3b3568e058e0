#include <utility>

#include "common/failure.h"
#include "common/files.h"
#include "plans/mupdfcontentdevice.h"
#include "plans/mupdfcontexts.h"
#include "plans/mupdfpagetree.h"
#include "plans/mupdfrunpage.h"

namespace tamo {
namespace {

// A file that ends when the reading is cancelled, so that the engine never reads on for nothing.
class CancellableReader : public FileReader {
 public:
  CancellableReader(std::shared_ptr<FileReader> file, const std::atomic<bool>* cancel)
      : file_(std::move(file)), cancel_(cancel) {}
  qint64 Size() const override { return file_->Size(); }
  int ReadAt(qint64 offset, char* into, qint64 count, qint64& got) const override {
    if (cancel_ != nullptr && *cancel_) return kFileOther;
    return file_->ReadAt(offset, into, count, got);
  }

 private:
  std::shared_ptr<FileReader> file_;
  const std::atomic<bool>* cancel_;
};

// One reading of one page, with a context of its own.
struct Reading {
  fz_context* context = nullptr;
  pdf_document* document = nullptr;
  pdf_page* page = nullptr;
  fz_rect bounds = fz_empty_rect;
  bool locked = false;
  fz_cookie cookie{};
};

bool OpenPage(Reading& reading, const std::shared_ptr<MuPdfContexts>& contexts,
              const std::shared_ptr<PlanSource>& source, const char* password, int index) {
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
    if (!reading.locked) {
      FlattenPageTree(context, reading.document);
      reading.page = pdf_load_page(context, reading.document, index);
      reading.bounds = pdf_bound_page(context, reading.page);
    }
  }
  fz_always(context) fz_drop_stream(context, stream);
  fz_catch(context) good = false;
  return good && !reading.locked;
}

bool GatherPage(Reading& reading, ContentGatherer& gatherer) {
  fz_context* context = reading.context;
  fz_device* device = nullptr;
  bool good = true;
  fz_var(device);
  fz_var(good);
  fz_try(context) {
    device = gatherer.NewDevice(context);
    RunPage(context, reading.page, device, &reading.cookie);
    fz_close_device(context, device);
  }
  fz_always(context) fz_drop_device(context, device);
  fz_catch(context) good = false;
  return good;
}

void Gather(Reading& reading, PageContent& content, const std::atomic<bool>* cancel) {
  const fz_rect& bounds = reading.bounds;
  content.size = {bounds.x1 - bounds.x0, bounds.y1 - bounds.y0};
  const PageBox visible = {bounds.x0, bounds.y0, bounds.x1, bounds.y1};
  ContentGatherer gatherer(content, visible, cancel, reading.cookie);
  const bool good = GatherPage(reading, gatherer);
  const fz_cookie& cookie = reading.cookie;
  content.whole = good && cookie.abort == 0 && cookie.errors == 0 && cookie.incomplete == 0;
  if (content.whole || !content.problem.isEmpty()) return;
  content.problem = cookie.abort != 0 ? QStringLiteral("the reading was stopped")
                                      : QStringLiteral("parts of the page are damaged");
}

void Close(Reading& reading) {
  fz_drop_page(reading.context, reading.page == nullptr ? nullptr : &reading.page->super);
  pdf_drop_document(reading.context, reading.document);
  MuPdfContexts::DropContext(reading.context);
}

}  // namespace

PageContent ReadPageContent(std::shared_ptr<FileReader> file, int page, const QByteArray& password,
                            const std::atomic<bool>* cancel) {
  PageContent content;
  content.error = kFileOther;
  const auto contexts = MuPdfContexts::Make();
  Reading reading;
  reading.context = contexts == nullptr ? nullptr : contexts->NewContext();
  if (reading.context == nullptr) {
    content.problem = QStringLiteral("there is not enough memory");
    return content;
  }
  const qint64 size = file->Size();
  const auto source = std::make_shared<PlanSource>(
      std::make_shared<CancellableReader>(std::move(file), cancel), size);
  if (OpenPage(reading, contexts, source, password.constData(), page - 1)) {
    content.error = kNoError;
    Gather(reading, content, cancel);
  } else {
    content.problem = reading.locked ? QStringLiteral("it is locked with a password")
                                     : QStringLiteral("the page is not there or damaged");
  }
  Close(reading);
  return content;
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
