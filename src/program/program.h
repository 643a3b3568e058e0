#pragma once

#include <functional>
#include <memory>

#include "common/desk.h"
#include "common/files.h"
#include "common/services.h"
#include "common/sharedfields.h"
#include "export/chartdata.h"
#include "plans/pdfdraw.h"
#include "program/filechoice.h"

namespace tamo {

class SheetPictures;
class Suggestions;

// The whole program below its windows: makes every form, the menus of both shells with their guards
// and transitions, and joins the forms' hand-overs. Windows, or the scenario player, stand on top
// of it.
class Program {
 public:
  // `viewer` is the plan viewer control; it outlives the program.
  Program(const Platform& platform, PdfDraw& viewer);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // Runs the start-up and brings up the shell of the mode that the settings name.
  void Start();
  bool Running() const;
  // The last window was closed, or Exit chosen: the display closes its windows and leaves its event
  // loop.
  std::function<void()> onEnded;

  Desk& GetDesk();
  Files& GetFiles();
  SharedFields& Shared();
  PdfDraw& Viewer();
  // Form of that name ("Tamo", "Pricing", ...), nullptr when there is none.
  Form* FindForm(const QString& name);
  // The text named FORM.NAME that is no control (Tamo.JobID, Form11.IAmHere, RFSForm.Flag), nullptr
  // when there is none.
  const QString* FindText(const QString& form, const QString& name);
  // As Settings has it; "" for none.
  QString CompanyName() const;
  // Prints what stands in the window of the form.
  void PrintFront(Form& form);
  // What is offered under the field that is being typed in.
  Suggestions& GetSuggestions();
  // The look that Settings has chosen: "Light", "Dark", "" for the desktop's.
  QString Look() const;
  std::function<void()> onLook;  // another one was chosen
  // Shows the plan `path` in the plan window, as one that is typed there.
  void OpenPlan(const QString& path);
  // From now on the home page follows what is stored, by a thread of its own; until then it is
  // brought up to date only when it is asked to be.
  void BeginHomePage();
  void RefreshHomePage();
  bool HomePageIsUpToDate();
  // For the strip at the foot of every window: what is not saved or can't be read, or else what a
  // sync program left; "" when all is well.
  QString Notice() const;
  // The strip at the foot of every window was clicked.
  void TrySavesAgain();
  // Every few seconds: renews the hold on the open project, or looks whether it is free by now.
  // In the middle of an event, while a message waits for its answer, it only renews.
  void Tick();
  // Asks, when saves are pending, whether to end all the same; true when the program may end.
  bool MayEnd();
  // Everything that waits in a form is kept in the recovery file, also what is being typed.
  void KeepWaiting();
  // Who asks the user for a file, and who draws a chart; without them nothing is saved or drawn.
  void ChooseFilesWith(FileChooser chooser);
  void DrawChartsWith(std::function<void(const ChartData& chart)> draw);
  // Scanned sheets may be read by it from then on; without it they are refused.
  void ReadPictures(std::shared_ptr<const SheetPictures> pictures);
  // The system asks the program to end, and nobody may be asked: all that waits is saved, or kept
  // for the next start.
  void SaveAll();

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace tamo
