#pragma once

#include <QByteArray>
#include <memory>

#include "common/files.h"
#include "plans/drawingboard.h"
#include "plans/planpictures.h"

namespace tamo {

struct MarkChanges;

// The real viewer: plans read and painted by MuPDF on threads of their own, marks kept as
// annotations inside the PDF.
//
// `files` outlives the viewer. Events that come later than a call (a slow plan, new pictures) are
// posted to the thread that made the viewer and need its event loop.
class MuPdfDraw : public DrawingBoard, public PlanPictures {
 public:
  explicit MuPdfDraw(Files& files);
  ~MuPdfDraw() override;
  MuPdfDraw(const MuPdfDraw&) = delete;
  MuPdfDraw& operator=(const MuPdfDraw&) = delete;

  int OpenFile(const QString& path, const QString& password) override;
  int SaveAs(const QString& path) override;
  bool HasUnsavedMarks() const override;

  void Look(const PlanView& view) override;
  std::vector<PlacedPicture> PicturesFor(const PlanView& view) override;
  std::shared_ptr<const Picture> Thumbnail(int page, int longSide) override;
  std::shared_ptr<const Picture> PrintPicture(const PlanView& part) override;

  // How long OpenFile waits for a plan before it comes back with a blank sheet and goes on in the
  // background; 10 seconds when not set. A window wants 80 milliseconds.
  void SetPatience(int milliseconds) { patience_ = milliseconds; }
  // How long a plan may take to open at all; 30 seconds when not set.
  void SetLongestOpening(int milliseconds) { longestOpening_ = milliseconds; }

  // Waits until everything visible is there in full sharpness, or the coarse picture is. For tests
  // and benchmarks.
  bool WaitUntilSharp(int milliseconds);
  bool WaitForCoarse(int milliseconds);
  // Waits for a plan that is slow to open; false when it is still opening.
  bool FinishOpening(int milliseconds);

 private:
  struct Session;
  struct Opening;
  class Bridge;

  std::unique_ptr<Session> NewSession(const QString& path, const QString& password, int& error);
  void StartPainting();
  void TakeOpened();
  void Close();
  int ShowNothing(const QString& path, int error, const QString& reason);
  void PicturesChanged();

  MarkChanges Changes() const;
  int Save(const QString& path, const MarkChanges& changes);
  int Append(const QString& path, const MarkChanges& changes);
  int WriteCopy(const QString& path, const MarkChanges& changes);
  int WriteAnew(const QString& path, const MarkChanges& changes);
  int WriteRepaired(int handle, QString& problem);
  std::unique_ptr<Session> OpenAside(const QString& path, int& error, std::vector<Mark>& marks);
  void ForgetAddition();
  int FinishCopy(int handle, int error, const QString& unfinished, const QString& path);
  bool ChangedOnDisk(const QString& path);
  int TakeFromDisk(const QString& path, const MarkChanges& changes);
  int BuildAddition(Session& session, const MarkChanges& changes, QByteArray& bytes);
  int CopyBytes(int handle);
  void CutTornTail(const QString& path, qint64 whole);
  int SaveFailed(const QString& path, int error, const QString& reason = QString());

  Files& files_;
  std::shared_ptr<Bridge> bridge_;
  std::unique_ptr<Session> session_;
  std::shared_ptr<Opening> opening_;  // while a slow plan is on its way
  QString password_;
  int patience_ = 10000;
  int longestOpening_ = 30000;
};

}  // namespace tamo
