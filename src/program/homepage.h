#pragma once

#include <QObject>
#include <memory>
#include <optional>

#include "plans/ostform.h"
#include "pricing/pricingform.h"
#include "program/bidreader.h"
#include "program/homecontrols.h"
#include "records/recentfile.h"
#include "takeoff/takingback.h"
#include "workspace/tamoform.h"

namespace tamo {

class DocsForm;

// The free space of the main form: with no project open the ways to begin, with one its state in
// figures, each a way to go there. The figures are read behind the work, after the events that
// stored something, and come when they are there: nobody waits for them.
class HomePage {
 public:
  struct Forms {
    TamoForm& main;
    OSTForm& ost;
    PricingForm& pricing;
    DocsForm& docs;
    TakingBack& takingBack;
  };
  // All of it outlives this.
  HomePage(const Kit& kit, const Forms& forms);
  ~HomePage();
  HomePage(const HomePage&) = delete;
  HomePage& operator=(const HomePage&) = delete;

  // From now on the page follows by itself; until then only when it is refreshed. The thread that
  // calls this has an event loop.
  void Begin();
  // After each event.
  void Follow();
  // Files may have been changed by other programs.
  void Tick();
  // Now, and by whoever calls it.
  void Refresh();
  bool Idle() { return !asking_ && reader_.Idle(); }
  std::function<void(const QString& path)> openPlan;

 private:
  class Saves;

  void BindStart();
  void BindState();
  void OpenSample();
  void OpenRecent(size_t at);
  void OpenProject(const QString& id);
  void AskLater();
  void ShowParts();
  void ShowRecent();
  void ShowFacts();
  void ShowFigures(const BidOverview& state);
  bool NoteOpened();  // true when another plan came up
  bool InSight() const;
  QStringList Unsaved() const;
  BidReader::Question TheQuestion() const;

  const Kit kit_;
  const Forms forms_;
  HomeControls page_;
  RecentThings recent_;
  bool begun_ = false;
  bool asking_ = false;
  QString job_;          // whose figures stand here
  QString open_;         // the project that is open
  bool opened_ = false;  // since the reader was asked last
  QStringList unsaved_;  // what could not be stored, when figures were last asked for
  QString plan_;         // the plan that was last noted
  std::unique_ptr<Saves> saves_;
  QObject here_;  // to which answers come
  BidReader reader_;
};

}  // namespace tamo
