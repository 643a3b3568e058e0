#pragma once

#include <memory>

#include "common/files.h"
#include "plans/pdfdraw.h"
#include "plans/workerengine.h"
#include "player/played.h"
#include "program/program.h"

namespace tamo::player {

// The program itself. Windows that are built over it get it from here.
class ProgramPlayed : public Played {
 public:
  explicit ProgramPlayed(const Platform& platform);
  ~ProgramPlayed() override;

  Program& GetProgram() { return *program_; }

  // The viewer as pictures for a window.
  PlanPictures* Pictures();
  // Until all of the plan that a window looks at is painted; bounded.
  void WaitForPictures();

  void Start() override;
  Desk& GetDesk() override;
  Form* FindForm(const QString& name) override;
  const QString* FindText(const QString& form, const QString& name) override;
  PdfDraw& Viewer() override;
  QString Notice() override;
  void TrySavesAgain() override;
  QStringList SuggestedNames() override;
  int WalkedSuggestion() override;
  void TakeSuggestion(int row) override;
  void Tick() override;
  bool Running() override;
  void RefreshHomePage() override { program_->RefreshHomePage(); }
  Form* Shell() override;
  void ChooseNext(const QString& path) override { choices_ += path; }
  QStringList Chart() const override { return chart_; }

 private:
  Files planFiles_;  // of the viewer, which knows no forms
  WorkerEngine engine_{TAMO_ENGINE};
  std::unique_ptr<PdfDraw> viewer_;
  std::unique_ptr<Program> program_;
  QStringList choices_;  // for the dialogs to come
  QStringList chart_;
};

}  // namespace tamo::player
