#pragma once

#include <memory>
#include <vector>

#include "common/kit.h"
#include "plans/ostcontrols.h"
#include "plans/pdfdraw.h"
#include "plans/planrecord.h"

namespace tamo {

// The project's own copy of the plan on the screen, with its marks.
class MarkedCopy {
 public:
  MarkedCopy(const Kit& kit, OstControls& form, PdfDraw& viewer, PlanRecord& record)
      : kit_(kit), form_(form), viewer_(viewer), record_(record) {}

  // Into the project `id`, and the record after it. Nothing when there is no plan to save.
  void Save(const QString& id);
  // The same after a mark was changed by hand: the record is written only when it names another
  // plan by now.
  void SaveEdits(const QString& id);
  // Another plan comes up: marks that are not saved yet are saved into the project they were drawn
  // for. Those that can't be saved stay with their plan, and wait.
  void Leave();
  // The plan `file` comes up: with its marks when some of them wait. True when it is shown then.
  bool ComeBack(const QString& file);
  // The plan on the screen was opened for the project in force.
  void Came();
  // After each event: the project in force may have come to be another's, or free.
  void Follow();
  // The same without leaving the plan. True when nothing is left to save.
  bool SaveMarks();

 private:
  // Where marks are saved.
  struct Target {
    QString path;             // "" for nowhere
    bool mayReplace = false;  // a copy of another drawing that stands there
  };
  // A plan that was left with marks that are not in its file.
  struct Left {
    Target target;   // nowhere when it belongs to no project
    QString source;  // the file that was shown
    QString project;
    std::shared_ptr<PdfDraw> plan;
  };
  bool NothingToSave() const;
  bool SaveCopy(const QString& id);  // false when it is refused
  bool ShowsBlankOrAbout() const;
  static int SaveTo(Files& files, PdfDraw& plan, const Target& target);
  void Write(const Target& target);
  Target TargetOfMarks() const;
  void ForgetSaved();

  const Kit kit_;
  OstControls& form_;
  PdfDraw& viewer_;
  PlanRecord& record_;
  Target waiting_;         // a copy that could not be written yet
  int waitingFor_ = 0;     // why
  QString project_;        // for which the plan on the screen was opened
  bool readOnly_ = false;  // nothing is written there: another program has that project
  std::vector<Left> left_;
};

}  // namespace tamo
