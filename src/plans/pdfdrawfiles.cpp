#include "plans/mupdfdraw.h"

#include <QMetaObject>
#include <QTimer>
#include <utility>

#include "common/failure.h"
#include "common/paths.h"
#include "plans/mupdfsession.h"

namespace tamo {
namespace {

constexpr int kPrintPatience = 60000;

QString OpenReason(int error) {
  switch (error) {
    case kFileNotFound:
      return QStringLiteral("the file is not there");
    case kPathNotFound:
      return QStringLiteral("its folder is not there");
    case kNoAccess:
      return QStringLiteral("there is no right to read it");
    default:
      return QStringLiteral("the device reports a failure");
  }
}

}  // namespace

// --- Bridge

void MuPdfDraw::Bridge::Cut() {
  const std::lock_guard<std::mutex> guard(mutex_);
  draw_ = nullptr;
  anchor_.reset();
}

void MuPdfDraw::Bridge::Post(const std::shared_ptr<Bridge>& bridge,
                             std::function<void(MuPdfDraw&)> work) {
  const std::lock_guard<std::mutex> guard(bridge->mutex_);
  if (bridge->draw_ == nullptr) return;
  QMetaObject::invokeMethod(
      bridge->anchor_.get(),
      [weak = std::weak_ptr<Bridge>(bridge), work = std::move(work)] {
        const auto alive = weak.lock();
        if (alive && alive->draw_ != nullptr) work(*alive->draw_);
      },
      Qt::QueuedConnection);
}

void MuPdfDraw::Bridge::After(const std::shared_ptr<Bridge>& bridge, int milliseconds,
                              std::function<void(MuPdfDraw&)> work) {
  auto* timer = new QTimer(bridge->anchor_.get());  // goes with the anchor
  timer->setSingleShot(true);
  QObject::connect(timer, &QTimer::timeout, bridge->anchor_.get(),
                   [timer, weak = std::weak_ptr<Bridge>(bridge), work = std::move(work)] {
                     timer->deleteLater();
                     const auto alive = weak.lock();
                     if (alive && alive->draw_ != nullptr) work(*alive->draw_);
                   });
  timer->start(milliseconds);
}

void MuPdfDraw::Bridge::PostPictures(const std::shared_ptr<Bridge>& bridge) {
  {
    const std::lock_guard<std::mutex> guard(bridge->mutex_);
    if (bridge->picturesPosted_) return;
    bridge->picturesPosted_ = true;
  }
  Post(bridge, [bridge = bridge.get()](MuPdfDraw& draw) {
    {
      const std::lock_guard<std::mutex> guard(bridge->mutex_);
      bridge->picturesPosted_ = false;
    }
    draw.PicturesChanged();
  });
}

// --- Opening and closing

MuPdfDraw::MuPdfDraw(Files& files) : files_(files), bridge_(std::make_shared<Bridge>(this)) {}

MuPdfDraw::~MuPdfDraw() {
  bridge_->Cut();
  Close();
}

void MuPdfDraw::Close() {
  opening_.reset();
  session_.reset();
}

int MuPdfDraw::ShowNothing(const QString& path, int error, const QString& reason) {
  Close();
  SetProblem(QStringLiteral("The plan %1 can't be shown: %2. Pick another file; the file itself is "
                            "unchanged.")
                 .arg(FileNameOf(path), reason));
  ShowPlan(QString(), {}, {});
  return error;
}

std::unique_ptr<MuPdfDraw::Session> MuPdfDraw::NewSession(const QString& path,
                                                          const QString& password, int& error) {
  std::shared_ptr<FileReader> reader;
  error = files_.GetDisk().OpenToRead(path, reader);
  if (error != kNoError) return nullptr;
  const FileTail tail = ReadTail(*reader);
  if (tail.torn) CutTornTail(path, tail.whole);
  auto session = std::make_unique<Session>();
  session->world = MuWorld::Make();
  if (session->world == nullptr) {
    error = kFileOther;
    return nullptr;
  }
  session->size = tail.whole;
  session->slot = std::make_shared<ReaderSlot>(reader, tail.whole);
  session->thread = std::make_unique<JobThread>(session->world);
  opening_ = std::make_shared<Opening>();
  session->thread->Post([world = session->world, slot = session->slot, holder = session->holder,
                         opening = opening_, password, bridge = bridge_](fz_context* context) {
    holder->file = std::make_unique<PlanFile>(context, world, slot);
    PlanContents contents = holder->file->Open(password);
    bool slow = false;
    {
      const std::lock_guard<std::mutex> guard(opening->mutex);
      opening->contents = std::move(contents);
      opening->done = true;
      slow = opening->slow;
      opening->ready.notify_all();
    }
    if (slow) {
      Bridge::Post(bridge, [opening](MuPdfDraw& draw) {
        if (draw.opening_ == opening) draw.TakeOpened();
      });
    }
  });
  return session;
}

int MuPdfDraw::OpenFile(const QString& given, const QString& password) {
  Close();
  SetProblem(QString());
  const QString path = files_.Resolved(given);
  password_ = password;
  int error = kNoError;
  session_ = NewSession(path, password, error);
  if (session_ == nullptr) return ShowNothing(path, error, OpenReason(error));
  BeginPlan(given);
  if (FinishOpening(patience_)) return ShownPath().isEmpty() ? kFileOther : kNoError;
  // A slow plan: a blank sheet stands for it until it is there, or has taken too long.
  FillPlan({}, {});
  Bridge::After(bridge_, longestOpening_, [opening = opening_](MuPdfDraw& draw) {
    if (draw.opening_ != opening) return;
    draw.ShowNothing(draw.ShownPath(), kFileOther, QStringLiteral("it takes too long to open"));
    if (draw.onProblem) draw.onProblem(draw.Problem());
  });
  return kNoError;
}

bool MuPdfDraw::FinishOpening(int milliseconds) {
  if (opening_ == nullptr) return true;
  {
    std::unique_lock<std::mutex> lock(opening_->mutex);
    const bool done = opening_->ready.wait_for(lock, std::chrono::milliseconds(milliseconds),
                                               [this] { return opening_->done; });
    if (!done) {
      opening_->slow = true;
      return false;
    }
  }
  TakeOpened();
  return true;
}

// Takes what the plan's thread has read; it is done by now.
void MuPdfDraw::TakeOpened() {
  const std::shared_ptr<Opening> opening = std::exchange(opening_, nullptr);
  PlanContents& contents = opening->contents;
  if (contents.error != kNoError) {
    ShowNothing(ShownPath(), contents.error, contents.problem);
    if (opening->slow && onProblem) onProblem(Problem());
    return;
  }
  session_->sizes = contents.sizes;
  for (const Mark& mark : contents.marks) session_->savedNames.insert(mark.name);
  StartPainting();
  // What was drawn on the blank sheet meanwhile is kept.
  contents.marks.insert(contents.marks.end(), BoardMarks().begin(), BoardMarks().end());
  FillPlan(std::move(contents.sizes), std::move(contents.marks));
}

void MuPdfDraw::StartPainting() {
  session_->painter = std::make_unique<PlanPainter>(
      session_->world, session_->slot, password_.toUtf8(), session_->sizes,
      [bridge = bridge_] { Bridge::PostPictures(bridge); });
}

// --- Pictures

void MuPdfDraw::PicturesChanged() {
  if (session_ != nullptr && session_->painter != nullptr) {
    for (const int page : session_->painter->TakeFailedPages()) {
      SetProblem(
          QStringLiteral("Page %1 of %2 can't be drawn: it is damaged or needs too much time "
                         "or memory. The other pages and all marks are unaffected.")
              .arg(page)
              .arg(ShownFile()));
      if (onProblem) onProblem(Problem());
    }
  }
  if (onPicturesChanged) onPicturesChanged();
}

void MuPdfDraw::Look(const PlanView& view) {
  if (session_ != nullptr && session_->painter != nullptr) session_->painter->Look(view);
}

std::vector<PlacedPicture> MuPdfDraw::PicturesFor(const PlanView& view) {
  if (session_ == nullptr || session_->painter == nullptr) return {};
  return session_->painter->PicturesFor(view);
}

std::shared_ptr<const Picture> MuPdfDraw::Thumbnail(int page, int longSide) {
  if (session_ == nullptr || session_->painter == nullptr) return nullptr;
  return session_->painter->Thumbnail(page, longSide);
}

std::shared_ptr<const Picture> MuPdfDraw::PrintPicture(const PlanView& part) {
  if (session_ == nullptr || session_->painter == nullptr) return nullptr;
  return session_->painter->PrintPicture(part, kPrintPatience);
}

bool MuPdfDraw::WaitUntilSharp(int milliseconds) {
  return session_ != nullptr && session_->painter != nullptr &&
         session_->painter->WaitUntilSharp(milliseconds);
}

bool MuPdfDraw::WaitForCoarse(int milliseconds) {
  return session_ != nullptr && session_->painter != nullptr &&
         session_->painter->WaitForCoarse(milliseconds);
}

}  // namespace tamo
