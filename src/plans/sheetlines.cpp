#include "plans/sheetlines.h"

#include <utility>

#include "plans/waituntil.h"

namespace tamo {
namespace {

// What is missing for a use of the lines: "to snap to".
QString ProblemOf(const PageContent& content, size_t lines, const QString& use,
                  const QString& inPart) {
  if (content.error != 0)
    return QStringLiteral("The lines of this sheet can't be read: %1.").arg(content.problem);
  if (lines == 0 && !content.pictures.empty())
    return QStringLiteral("This sheet is a scanned picture: it has no lines %1.").arg(use);
  if (lines == 0) return QStringLiteral("This sheet has no lines %1.").arg(use);
  if (content.whole) return {};
  return QStringLiteral("A part of this sheet's lines could not be read: %1.").arg(inPart);
}

}  // namespace

SheetLines::~SheetLines() {
  if (read_ != nullptr) read_->cancel.Cancel();
}

void SheetLines::ReadPage(const std::shared_ptr<EnginePlan>& plan, int page,
                          const std::shared_ptr<Read>& read) {
  std::shared_ptr<const SnapIndex> index;
  std::shared_ptr<const std::vector<LikeLetter>> letters;
  QString problem;
  QString symbolsProblem;
  std::vector<PrintedScale> scales;
  if (!read->cancel.Cancelled()) {
    const PageContent content = plan->ReadContent(page, read->cancel);
    if (!read->cancel.Cancelled()) {
      index = std::make_shared<SnapIndex>(SnapLinesOf(content));
      problem = ProblemOf(content, index->Lines(), QStringLiteral("to snap to"),
                          QStringLiteral("snap knows the others"));
      symbolsProblem =
          ProblemOf(content, index->Lines(), QStringLiteral("by which symbols are found"),
                    QStringLiteral("only among the others is looked"));
      letters = std::make_shared<const std::vector<LikeLetter>>(LettersOf(content));
      scales = ScalesOf(content);
    }
  }
  const std::lock_guard<std::mutex> guard(read->mutex);
  read->index = std::move(index);
  read->letters = std::move(letters);
  read->problem = std::move(problem);
  read->symbolsProblem = std::move(symbolsProblem);
  read->scales = std::move(scales);
  read->done = true;
}

void SheetLines::KeepOnly(const std::shared_ptr<EnginePlan>& plan, int page) {
  if (read_ == nullptr || (plan != nullptr && plan_.lock() == plan && page_ == page)) return;
  read_->cancel.Cancel();
  read_.reset();
}

void SheetLines::Want(const std::shared_ptr<EnginePlan>& plan, int page) {
  KeepOnly(plan, page);
  if (plan == nullptr || read_ != nullptr) return;
  plan_ = plan;
  page_ = page;
  read_ = std::make_shared<Read>();
  if (thread_ == nullptr) thread_ = std::make_unique<WorkThread>();
  thread_->Post([plan, page, read = read_, tell = onRead] {
    ReadPage(plan, page, read);
    if (tell) tell();
  });
}

std::shared_ptr<const SnapIndex> SheetLines::Index() const {
  if (read_ == nullptr) return nullptr;
  const std::lock_guard<std::mutex> guard(read_->mutex);
  return read_->index;
}

std::shared_ptr<const std::vector<LikeLetter>> SheetLines::Letters() const {
  if (read_ == nullptr) return nullptr;
  const std::lock_guard<std::mutex> guard(read_->mutex);
  return read_->letters;
}

QString SheetLines::SymbolsProblem() const {
  if (read_ == nullptr) return {};
  const std::lock_guard<std::mutex> guard(read_->mutex);
  return read_->symbolsProblem;
}

bool SheetLines::Reading() const {
  if (read_ == nullptr) return false;
  const std::lock_guard<std::mutex> guard(read_->mutex);
  return !read_->done;
}

std::vector<PrintedScale> SheetLines::Scales(const std::shared_ptr<EnginePlan>& plan,
                                             int page) const {
  if (read_ == nullptr || plan == nullptr || plan_.lock() != plan || page_ != page) return {};
  const std::lock_guard<std::mutex> guard(read_->mutex);
  return read_->scales;
}

bool SheetLines::TakeNews() {
  if (read_ == nullptr) return false;
  const std::lock_guard<std::mutex> guard(read_->mutex);
  return read_->done && !std::exchange(read_->told, true);
}

QString SheetLines::Problem() const {
  if (read_ == nullptr) return {};
  const std::lock_guard<std::mutex> guard(read_->mutex);
  return read_->problem;
}

bool SheetLines::Wait(int milliseconds) {
  return WaitUntil(milliseconds, [this] { return !Reading(); });
}

}  // namespace tamo
