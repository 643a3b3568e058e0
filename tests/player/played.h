#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <memory>

#include "common/desk.h"
#include "common/form.h"
#include "common/services.h"
#include "plans/pdfdraw.h"

namespace tamo::player {

// A running program as the player drives it and looks at it.
class Played {
 public:
  virtual ~Played() = default;
  virtual void Start() = 0;  // once, after a display was built over it
  virtual Desk& GetDesk() = 0;
  virtual Form* FindForm(const QString& name) = 0;  // nullptr when there is none
  // The text FORM.NAME that is no control; nullptr when there is none.
  virtual const QString* FindText(const QString& form, const QString& name) = 0;
  virtual PdfDraw& Viewer() = 0;
  virtual QString Notice() = 0;  // of unsaved files
  virtual void TrySavesAgain() = 0;
  // What is offered under the field that is being typed in, and the row that the keys have walked
  // to, -1 for none.
  virtual QStringList SuggestedNames() { return {}; }
  virtual int WalkedSuggestion() { return -1; }
  virtual void TakeSuggestion(int /*row*/) {}
  virtual void Tick() = 0;  // as time goes by, between two events
  virtual bool Running() = 0;
  // The figures of the home page are read now: somebody looks at them.
  virtual void RefreshHomePage() {}
  // What is chosen in the next dialog for a file.
  virtual void ChooseNext(const QString& path) { (void)path; }
  // What the chart says that was last drawn.
  virtual QStringList Chart() const { return {}; }
  // The form whose window is closed to end the program; nullptr when any will do.
  virtual Form* Shell() = 0;
};

// Makes a program on a platform that outlives it.
using ProgramMaker = std::function<std::unique_ptr<Played>(const Platform&)>;

}  // namespace tamo::player
