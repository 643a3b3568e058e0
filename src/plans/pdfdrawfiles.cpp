#include "plans/pdfdraw.h"

#include <QMetaObject>
#include <QTimer>
#include <utility>

#include "common/failure.h"
#include "common/paths.h"
#include "plans/comparison.h"
#include "plans/plansession.h"

namespace tamo {
namespace {

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

// --- News from the plan's threads

void PdfDraw::FormsThread::Cut() {
  const std::lock_guard<std::mutex> guard(mutex_);
  draw_ = nullptr;
  anchor_.reset();
}

void PdfDraw::FormsThread::Post(const std::shared_ptr<FormsThread>& forms,
                                std::function<void(PdfDraw&)> work) {
  const std::lock_guard<std::mutex> guard(forms->mutex_);
  if (forms->draw_ == nullptr) return;
  QMetaObject::invokeMethod(
      forms->anchor_.get(),
      [weak = std::weak_ptr<FormsThread>(forms), work = std::move(work)] {
        const auto alive = weak.lock();
        if (alive && alive->draw_ != nullptr) work(*alive->draw_);
      },
      Qt::QueuedConnection);
}

void PdfDraw::FormsThread::After(const std::shared_ptr<FormsThread>& forms, int milliseconds,
                                 std::function<void(PdfDraw&)> work) {
  auto* timer = new QTimer(forms->anchor_.get());  // goes with the anchor
  timer->setSingleShot(true);
  QObject::connect(timer, &QTimer::timeout, forms->anchor_.get(),
                   [timer, weak = std::weak_ptr<FormsThread>(forms), work = std::move(work)] {
                     timer->deleteLater();
                     const auto alive = weak.lock();
                     if (alive && alive->draw_ != nullptr) work(*alive->draw_);
                   });
  timer->start(milliseconds);
}

void PdfDraw::FormsThread::PostPictures(const std::shared_ptr<FormsThread>& forms) {
  {
    const std::lock_guard<std::mutex> guard(forms->mutex_);
    if (forms->picturesPosted_) return;
    forms->picturesPosted_ = true;
  }
  Post(forms, [forms = forms.get()](PdfDraw& draw) {
    {
      const std::lock_guard<std::mutex> guard(forms->mutex_);
      forms->picturesPosted_ = false;
    }
    draw.PicturesChanged();
  });
}

// --- The plan on the board

QString PdfDraw::ShownFile() const {
  return FileNameOf(path_);
}

// A plan begins: its pages and marks are not known yet.
void PdfDraw::BeginPlan(const QString& path) {
  comparison_->End();
  hand_.Forget();
  path_ = path;
  notices_.reservation.clear();
  notices_.caution.clear();
  BeginSheets();
  ClearMarks();
  ClearBoard();
}

void PdfDraw::FillPlan(std::vector<PageSize> sizes, std::vector<Mark> marks) {
  FillSheets(std::move(sizes));
  FillMarks(std::move(marks));
  CentreCrossHair();
  Raise(onPageChanged);
  ViewChanged();
  Repaint();
}

bool PdfDraw::MayMark() {
  if (notices_.reservation.isEmpty()) return true;
  const bool all = !onReservation || onReservation(notices_.reservation);
  if (all) notices_.reservation.clear();
  return all;
}

// --- Opening and closing

PdfDraw::PdfDraw(Files& files, PlanEngine& engine)
    : files_(files),
      engine_(engine),
      forms_(std::make_shared<FormsThread>(this)),
      comparison_(std::make_unique<Comparison>(*this)) {
  snap_.Lines().onRead = [forms = forms_] {
    FormsThread::Post(forms, [](PdfDraw& draw) {
      draw.snap_.TellOfSheet();
      draw.TellOfSearch();
    });
  };
  Box().onSymbol = [this](const DrawnBox& box) { SymbolBoxed(box); };
  same_.Search().onDone = [forms = forms_] {
    FormsThread::Post(forms, [](PdfDraw& draw) { draw.TellOfSearch(); });
  };
}

PdfDraw::~PdfDraw() {
  forms_->Cut();
  Close();
}

void PdfDraw::Close() {
  opening_.reset();
  session_.reset();
}

int PdfDraw::ShowNothing(const QString& path, int error, const QString& reason) {
  Close();
  problem_ = QStringLiteral(
                 "The plan %1 can't be shown: %2. Pick another file; the file itself is unchanged.")
                 .arg(FileNameOf(path), reason);
  BeginPlan(QString());
  FillPlan({}, {});
  return error;
}

std::unique_ptr<PdfDraw::Session> PdfDraw::NewSession(const QString& path, const QString& password,
                                                      int& error) {
  std::shared_ptr<FileReader> reader;
  error = files_.GetDisk().OpenToRead(path, reader);
  if (error != kNoError) return nullptr;
  const FileTail tail = ReadTail(*reader);
  if (tail.torn) CutTornTail(path, tail.whole);
  auto session = std::make_unique<Session>();
  session->size = tail.whole;
  session->source = std::make_shared<PlanSource>(reader, tail.whole);
  session->plan = engine_.NewPlan(session->source);
  if (session->plan == nullptr) {
    error = kFileOther;
    return nullptr;
  }
  session->thread = std::make_unique<WorkThread>();
  opening_ = std::make_shared<Opening>();
  session->thread->Post([plan = session->plan, opening = opening_, password, forms = forms_] {
    PlanContents contents = plan->Open(password);
    bool slow = false;
    {
      const std::lock_guard<std::mutex> guard(opening->mutex);
      opening->contents = std::move(contents);
      opening->done = true;
      slow = opening->slow;
      opening->ready.notify_all();
    }
    if (slow) {
      FormsThread::Post(forms, [opening](PdfDraw& draw) {
        if (draw.opening_ == opening) draw.TakeOpened();
      });
    }
  });
  return session;
}

int PdfDraw::OpenFile(const QString& given, const QString& password) {
  Close();
  problem_.clear();
  notices_.wantsPassword = false;
  const QString path = files_.Resolved(given);
  password_ = password;
  int error = kNoError;
  session_ = NewSession(path, password, error);
  if (session_ == nullptr) return ShowNothing(path, error, OpenReason(error));
  BeginPlan(given);
  if (FinishOpening(inSight_ ? patience_ : patienceOutOfSight_))
    return ShownPath().isEmpty() ? kFileOther : kNoError;
  // A slow plan: a blank sheet stands for it until it is there, or has taken too long.
  FillPlan({}, {});
  FormsThread::After(forms_, longestOpening_, [opening = opening_](PdfDraw& draw) {
    if (draw.opening_ != opening) return;
    draw.ShowNothing(draw.ShownPath(), kFileOther, QStringLiteral("it takes too long to open"));
    if (draw.onProblem) draw.onProblem(draw.problem_);
  });
  return kNoError;
}

bool PdfDraw::FinishOpening(int milliseconds) {
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
void PdfDraw::TakeOpened() {
  const std::shared_ptr<Opening> opening = std::exchange(opening_, nullptr);
  PlanContents& contents = opening->contents;
  notices_.wantsPassword = contents.wantsPassword;
  if (contents.error != kNoError) {
    ShowNothing(ShownPath(), contents.error, contents.problem);
    if (opening->slow && onProblem) onProblem(problem_);
    return;
  }
  notices_.reservation = contents.reservation;
  notices_.caution = contents.caution;
  session_->sizes = contents.sizes;
  for (const Mark& mark : contents.marks) session_->saved.insert(mark.name, mark);
  session_->KnowTotals(contents.marks);
  StartPainting();
  // What was drawn on the blank sheet meanwhile is kept.
  contents.marks.insert(contents.marks.end(), MarksAsDrawn().begin(), MarksAsDrawn().end());
  FillPlan(std::move(contents.sizes), std::move(contents.marks));
  if (opening->slow && !notices_.caution.isEmpty()) Raise(onPageProblem, notices_.caution);
}

void PdfDraw::StartPainting() {
  session_->painter = std::make_unique<PlanPainter>(
      session_->plan, session_->sizes, [forms = forms_] { FormsThread::PostPictures(forms); });
  comparison_->Follow();
}

std::unique_ptr<PdfDraw> PdfDraw::SetAside() {
  FinishOpening(patience_);
  auto aside = std::make_unique<PdfDraw>(files_, engine_);
  if (session_ == nullptr) return aside;
  std::vector<Mark> marks = MarksAsDrawn();
  session_->painter.reset();
  aside->session_ = std::move(session_);
  aside->BeginPlan(path_);
  aside->notices_ = notices_;
  aside->password_ = password_;
  aside->unsure_ = std::exchange(unsure_, QString());
  aside->FillPlan(aside->session_->sizes, std::move(marks));
  Close();
  BeginPlan(QString());
  FillPlan({}, {});
  return aside;
}

void PdfDraw::BringBack(PdfDraw& aside) {
  Close();
  problem_.clear();
  std::vector<Mark> marks = aside.MarksAsDrawn();
  session_ = std::move(aside.session_);
  password_ = aside.password_;
  unsure_ = aside.unsure_;
  BeginPlan(aside.path_);
  notices_ = aside.notices_;
  if (session_ == nullptr) return FillPlan({}, {});
  StartPainting();
  FillPlan(session_->sizes, std::move(marks));
}

}  // namespace tamo
