#pragma once

#include <QTimer>
#include <memory>
#include <vector>

#include "common/files.h"
#include "plans/drawingboard.h"
#include "plans/markhand.h"
#include "plans/newspost.h"
#include "plans/openingpatience.h"
#include "plans/openplan.h"
#include "plans/plansaver.h"
#include "plans/samesymbols.h"
#include "plans/shownpictures.h"
#include "plans/snappointer.h"

namespace tamo {

class Comparison;

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
class PdfDraw : public DrawingBoard {
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
  OpeningPatience& Patience() { return patience_; }
  // Waits for a plan that is slow to open; false when it is still opening.
  bool FinishOpening(int milliseconds);
  // Writes the plan with its marks, and goes on showing the file written. Costs nothing when the
  // target is the file shown and no mark has changed. A failure leaves the old file whole and the
  // marks unsaved.
  int SaveAs(const QString& path);
  // Adds the marks that are not saved yet to those of the plan `path`, a copy of the one shown that
  // exists already, and goes on showing it. Otherwise as SaveAs.
  int AddTo(const QString& path);
  QString ShownFile() const;                   // without folder; empty for the blank sheet
  QString ShownPath() const { return path_; }  // the path as it was given
  bool ShowsFile(const QString& path) const;
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
  // Whether this plan may be marked; asks the user where it has to be asked.
  bool MayMark() override;

  void Print() { Raise(onPrint); }
  void BringToFront() { Raise(onBringToFront); }

  // What a window paints of the plan, and of another one laid over it.
  ShownPictures& Pictures() { return pictures_; }
  // The plan shows something else than before on the same pages: pictures and lines are made anew.
  void ForgetPictures();
  // What is in sight is to be painted anew.
  void ShowAnew() { ViewChanged(); }

  // The plan shown, as long as who asks needs it: its calls block, so not for the windows' thread.
  // Null when none is shown, or it is still opening.
  std::shared_ptr<EnginePlan> OpenedPlan() const;
  // A plan for reading beside the one shown, not opened yet; nothing is written to it. Null when it
  // is not there: `error` says why.
  std::shared_ptr<EnginePlan> OpenBeside(const QString& path, int& error);

  // Another plan laid over the one shown; it ends with it.
  Comparison& Compared() { return *comparison_; }
  const Comparison& Compared() const { return *comparison_; }
  // Where the pointer takes hold of the drawing while something is measured.
  SnapPointer& Snap() { return snap_; }
  // The mark that is chosen, to be changed.
  MarkHand& Hand() { return hand_; }
  const MarkHand& Hand() const { return hand_; }
  // What finds the likes of a symbol on the sheet.
  SameSymbols& Same() { return same_; }

 protected:
  bool TakeOverlayKey(const PlanStroke& stroke) override;
  bool TakeHelperKey(const PlanStroke& stroke) override;
  FreePointer& Free() override { return hand_; }

 private:
  void Put(std::unique_ptr<OpenPlan> plan);
  void TakeOpened();
  int ShowNothing(const QString& path, int error, const QString& reason);
  void TooLong();
  void BeginPlan(const QString& path);
  void FillPlan(std::vector<PageSize> sizes, std::vector<Mark> marks);
  void StartPainting();

  int SaveNow(const QString& given);
  int AddNow(const QString& path);
  int Write(const QString& path, bool own, const MarkChanges& changes);
  int TakeFromDisk(const QString& path, const MarkChanges& changes);

  Files& files_;
  PlanEngine& engine_;
  std::unique_ptr<OpenPlan> plan_;
  QString path_;
  QString problem_;
  struct {
    bool wantsPassword = false;
    QString reservation;  // not answered yet
    QString caution;
  } notices_;
  OpeningPatience patience_;
  NewsPost opened_;  // a plan that was not waited for
  QTimer tooLong_;
  PlanSaver saver_;
  SnapPointer snap_{*this};
  MarkHand hand_{*this};
  SameSymbols same_{*this};
  std::unique_ptr<Comparison> comparison_;
  ShownPictures pictures_;
};

}  // namespace tamo
