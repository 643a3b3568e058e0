#include "plans/pdfdraw.h"

#include <utility>

#include "common/failure.h"
#include "common/paths.h"
#include "plans/comparison.h"
#include "plans/filetail.h"

// What stands on the board, and who helps there.

namespace tamo {

PdfDraw::PdfDraw(Files& files, PlanEngine& engine)
    : files_(files),
      engine_(engine),
      opened_([this] {
        if (plan_ != nullptr && !plan_->Taken() && plan_->Done()) TakeOpened();
      }),
      saver_(files.GetDisk(), problem_, [this](int perCent) { Raise(onSaveProgress, perCent); }),
      comparison_(std::make_unique<Comparison>(*this)),
      pictures_(comparison_->Pictures(), [this] { return ShownFile(); }) {
  tooLong_.setSingleShot(true);
  QObject::connect(&tooLong_, &QTimer::timeout, [this] { TooLong(); });
  pictures_.onPainting = [this](bool painting) { Raise(onPainting, painting); };
  pictures_.onPageProblem = [this](const QString& text) {
    problem_ = text;
    Raise(onPageProblem, text);
  };
  Box().onSymbol = [this](const DrawnBox& box) { same_.TakeBox(box.place); };
}

PdfDraw::~PdfDraw() {
  Put(nullptr);
}

QString PdfDraw::ShownFile() const {
  return FileNameOf(path_);
}

bool PdfDraw::ShowsFile(const QString& path) const {
  return !path_.isEmpty() && files_.Resolved(path) == files_.Resolved(path_);
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

void PdfDraw::StartPainting() {
  pictures_.Show(plan_->Engine(), plan_->Sizes());
  comparison_->Follow();
}

void PdfDraw::ForgetPictures() {
  pictures_.Forget();
  snap_.Lines().KeepOnly(nullptr, 0);
  snap_.Follow();
  ViewChanged();
}

bool PdfDraw::MayMark() {
  if (notices_.reservation.isEmpty()) return true;
  const bool all = !onReservation || onReservation(notices_.reservation);
  if (all) notices_.reservation.clear();
  return all;
}

std::shared_ptr<EnginePlan> PdfDraw::OpenedPlan() const {
  return plan_ != nullptr && plan_->Taken() ? plan_->Engine() : nullptr;
}

std::shared_ptr<EnginePlan> PdfDraw::OpenBeside(const QString& path, int& error) {
  std::shared_ptr<FileReader> reader;
  error = files_.GetDisk().OpenToRead(files_.Resolved(path), reader);
  if (error != kNoError) return nullptr;
  const qint64 whole = ReadTail(*reader).whole;
  auto plan = engine_.NewPlan(std::make_shared<PlanSource>(std::move(reader), whole));
  if (plan == nullptr) error = kFileOther;
  return plan;
}

// --- Keys of who helps on the board

bool PdfDraw::TakeOverlayKey(const PlanStroke& stroke) {
  return comparison_->TakeKey(stroke);
}

bool PdfDraw::TakeHelperKey(const PlanStroke& stroke) {
  return same_.TakeKey(stroke.key) || hand_.TakeKey(stroke) || snap_.TakeKey(stroke.key);
}

}  // namespace tamo
