#pragma once

#include <QByteArray>
#include <memory>
#include <optional>

#include "common/files.h"
#include "plans/drawingboard.h"
#include "plans/markhand.h"
#include "plans/planengine.h"
#include "plans/planpictures.h"
#include "plans/samesymbols.h"
#include "plans/snappointer.h"

namespace tamo {

class Comparison;
class PlanPainter;
class Replacement;

// The plan viewer: shows one PDF at a time, pages and zooms it, marks and measures it, and saves
// the marks as annotations inside the PDF.
//
// All calls and all events belong to one thread (that of the forms); events are raised
// synchronously inside the call that causes them, except those of a plan that needs long to open
// and of new pictures, which need that thread's event loop. Plans are read and painted on threads
// of their own.
//
// Failures are numbers, as for every file: 0 done, 53 file not found, 76 path not found, 75 access
// denied, 61 disk full, 57 anything else (a damaged or locked PDF); Problem() says it in words.
class PdfDraw : public DrawingBoard, public PlanPictures {
 public:
  // Both outlive the viewer.
  PdfDraw(Files& files, PlanEngine& engine);
  ~PdfDraw() override;
  PdfDraw(const PdfDraw&) = delete;
  PdfDraw& operator=(const PdfDraw&) = delete;

  // Shows a plan at page 1, position 0 0, not rotated, with the unit inches, the unit name "feet"
  // and no tool in hand; the zoom stays. Raises onPageChanged, no onScrolled. When the plan can't
  // be shown, a blank sheet is (one page, nothing to save, ShownFile() empty) and the number says
  // why. A plan that is slow to open returns 0 with one blank page; when it is there, onPageChanged
  // comes again, or onProblem, and a page set in between is turned to.
  int OpenFile(const QString& path, const QString& password);
  // Writes the plan with its marks, and goes on showing the file written. Costs nothing when the
  // target is the file shown and no mark has changed. A failure leaves the old file whole and the
  // marks unsaved.
  int SaveAs(const QString& path);
  // Adds the marks that are not saved yet to those of the plan `path`, a copy of the one shown that
  // exists already, and goes on showing it. Otherwise as SaveAs.
  int AddTo(const QString& path);
  QString ShownFile() const;                   // without folder; empty for the blank sheet
  QString ShownPath() const { return path_; }  // the path as it was given
  bool HasUnsavedMarks() const;
  // Takes the plan with its marks off the sheet, into a viewer of its own that saves it and shows
  // nothing; a blank sheet stays. It must not outlive the engine and the files.
  std::unique_ptr<PdfDraw> SetAside();
  // Shows a plan that was set aside again, as it was; nothing is left in `aside`.
  void BringBack(PdfDraw& aside);
  QString Problem() const { return problem_; }  // the last failure: what, where, what to do
  // The plan that OpenFile was last called with opens with another password only.
  bool WantsPassword() const { return notices_.wantsPassword; }
  // What can't be saved of the plan shown, as a sentence; empty when all can.
  QString Caution() const { return notices_.caution; }

  void Print() { Raise(onPrint); }
  void BringToFront() { Raise(onBringToFront); }

  void Look(const PlanView& view) override;
  // The plan shows something else than before on the same pages: pictures and lines are made anew.
  void ForgetPictures();
  std::vector<PlacedPicture> PicturesFor(const PlanView& view) override;
  std::shared_ptr<const Picture> Thumbnail(int page, int longSide) override;
  std::shared_ptr<const Picture> PrintPicture(const PlanView& part,
                                              const std::function<void()>& meanwhile) override;

  // The plan shown, as long as who asks needs it: its calls block, so not for the windows' thread.
  // Null when none is shown, or it is still opening.
  std::shared_ptr<EnginePlan> OpenedPlan() const;

  // A plan for reading beside the one shown, not opened yet; nothing is written to it. Null when it
  // is not there: `error` says why.
  std::shared_ptr<EnginePlan> OpenBeside(const QString& path, int& error);
  bool ShowsFile(const QString& path) const;
  std::vector<PageSize> Sizes() const;
  // Another plan laid over the one shown; it ends with it.
  Comparison& Compared() { return *comparison_; }
  const Comparison& Compared() const { return *comparison_; }
  // Puts marks of another plan onto this one, each under its own name. False when the user does not
  // want this plan to be marked.
  bool PutMarks(const std::vector<Mark>& marks);
  // What is in sight is to be painted anew.
  void ShowAnew() { ViewChanged(); }

  // Where the pointer takes hold of the drawing while something is measured.
  SnapPointer& Snap() { return snap_; }
  // The mark that is chosen, to be changed.
  MarkHand& Hand() { return hand_; }
  const MarkHand& Hand() const { return hand_; }
  bool MayMark() override;
  // What finds the likes of a symbol on the sheet.
  SameSymbols& Same() { return same_; }

  // How long OpenFile waits for a plan before it comes back with a blank sheet and goes on in the
  // background; 10 seconds when not set. A window wants 6 milliseconds; nobody waits for a plan
  // that is not in sight.
  void SetPatience(int milliseconds, std::optional<int> outOfSight = {}) {
    patience_ = milliseconds;
    patienceOutOfSight_ = outOfSight.value_or(milliseconds);
  }
  void SetInSight(bool inSight) { inSight_ = inSight; }
  // How long a plan may take to open at all; 30 seconds when not set.
  void SetLongestOpening(int milliseconds) { longestOpening_ = milliseconds; }

  // Waits until everything visible is there in full sharpness, or the coarse picture is.
  bool WaitUntilSharp(int milliseconds);
  bool WaitForCoarse(int milliseconds);
  // Waits for a plan that is slow to open; false when it is still opening.
  bool FinishOpening(int milliseconds);

 protected:
  bool TakeSnapKey(PlanKey key) override { return snap_.TakeKey(key); }
  bool TakeMarkKey(const PlanStroke& stroke) override {
    return same_.TakeKey(stroke.key) || hand_.TakeKey(stroke);
  }
  void PressFree(PagePoint at) override { hand_.Press(at); }
  void MoveFree(PagePoint at, bool shift) override { hand_.Move(at, shift); }
  void ReleaseFree(PagePoint at, bool shift) override { hand_.Release(at, shift); }
  void ToolComes() override { hand_.LetGo(); }
  bool TakeOverlayKey(const PlanStroke& stroke) override;

 private:
  struct Session;
  struct Opening;
  class FormsThread;

  std::unique_ptr<Session> NewSession(const QString& path, const QString& password, int& error);
  void StartPainting();
  void TakeOpened();
  void Close();
  int ShowNothing(const QString& path, int error, const QString& reason);
  void PicturesChanged();
  void TellOfPainting();
  void SymbolBoxed(const DrawnBox& box);
  void TellOfSearch();
  void TellOfPages(PlanPainter& painter);
  void BeginPlan(const QString& path);
  void FillPlan(std::vector<PageSize> sizes, std::vector<Mark> marks);

  MarkChanges Changes() const;
  void AddTotals(MarkChanges& changes) const;
  MarkChanges WithTotalsAnew(const MarkChanges& changes) const;
  void MarksAreSaved();
  int WriteChanges(const QString& path, bool same, const MarkChanges& changes);
  int Append(const QString& path, const MarkChanges& changes);
  int WriteCopy(const QString& path, const MarkChanges& changes);
  int WriteAnew(const QString& path, const MarkChanges& changes);
  int WriteRepaired(int handle, QString& problem);
  struct Progress;
  // Does a part of a save on the plan's thread and waits for it, with the window alive; kFileOther
  // when it takes too long. The work owns what it works on.
  using SavePart = std::function<int(Progress& progress)>;
  int DoAside(const SavePart& work, int patience, QString* problem = nullptr);
  std::unique_ptr<Session> OpenAside(const QString& path, int& error, std::vector<Mark>& marks);
  void ForgetUpdate();
  int FinishCopy(Replacement& copy, int error, const QString& path);
  int Confirm(const QString& path);
  // One save at a time; tells of its end.
  int SaveAlone(const QString& given, const std::function<int()>& save);
  int SaveNow(const QString& given);
  int AddNow(const QString& path);
  bool ChangedOnDisk(const QString& path);
  int TakeFromDisk(const QString& path, const MarkChanges& changes);
  int BuildUpdate(Session& session, const MarkChanges& changes, QByteArray& bytes);
  struct Appended;
  static int WriteDown(Disk& disk, int handle, const QByteArray& bytes, Progress& progress);
  SavePart WriteBytes(int handle, const QByteArray& bytes) const;
  SavePart CopyBytes(int handle, const QByteArray& more) const;
  void CutTornTail(const QString& path, qint64 whole);
  int SaveFailed(const QString& path, int error, const QString& reason = QString());

  Files& files_;
  PlanEngine& engine_;
  std::shared_ptr<FormsThread> forms_;
  std::unique_ptr<Session> session_;
  std::shared_ptr<Opening> opening_;  // while a slow plan is on its way
  QString path_;
  QString problem_;
  QString unsure_;  // a plan that was saved, and the device did not confirm it
  QString password_;
  struct {
    bool wantsPassword = false;
    QString reservation;  // not answered yet
    QString caution;
  } notices_;
  bool saving_ = false;
  bool searchTold_ = false;  // it says how far it is in a moment
  SnapPointer snap_{*this};
  MarkHand hand_{*this};
  SameSymbols same_{*this};
  std::unique_ptr<Comparison> comparison_;
  int patience_ = 10000;
  int patienceOutOfSight_ = 10000;
  bool inSight_ = true;
  int longestOpening_ = 30000;
};

}  // namespace tamo
