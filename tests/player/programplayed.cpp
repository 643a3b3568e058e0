#include "player/programplayed.h"

#include "program/suggestions.h"

namespace tamo::player {

ProgramPlayed::ProgramPlayed(const Platform& platform)
    : planFiles_(platform.disk),
      viewer_(std::make_unique<PdfDraw>(planFiles_, engine_)),
      program_(std::make_unique<Program>(platform, *viewer_)) {
  program_->ChooseFilesWith([this](const FileQuestion&) {
    return choices_.isEmpty() ? QString() : choices_.takeFirst();
  });
  program_->DrawChartsWith([this](const ChartData& chart) { chart_ = chart.Lines(); });
}

ProgramPlayed::~ProgramPlayed() = default;

PlanPictures* ProgramPlayed::Pictures() {
  return &viewer_->Pictures();
}

void ProgramPlayed::WaitForPictures() {
  constexpr int kPatience = 5000;  // milliseconds
  (void)viewer_->Pictures().WaitUntilSharp(kPatience);
}

void ProgramPlayed::Start() {
  program_->Start();
}
Desk& ProgramPlayed::GetDesk() {
  return program_->GetDesk();
}
Form* ProgramPlayed::FindForm(const QString& name) {
  return program_->FindForm(name);
}
const QString* ProgramPlayed::FindText(const QString& form, const QString& name) {
  return program_->FindText(form, name);
}
PdfDraw& ProgramPlayed::Viewer() {
  return *viewer_;
}
QString ProgramPlayed::Notice() {
  return program_->Notice();
}
void ProgramPlayed::TrySavesAgain() {
  program_->TrySavesAgain();
}
QStringList ProgramPlayed::SuggestedNames() {
  return program_->GetSuggestions().Rows();
}
int ProgramPlayed::WalkedSuggestion() {
  return program_->GetSuggestions().Walked();
}
void ProgramPlayed::TakeSuggestion(int row) {
  program_->GetSuggestions().Take(row);
}
void ProgramPlayed::Tick() {
  program_->Tick();
}
bool ProgramPlayed::Running() {
  return program_->Running();
}

// In mode 2 the plan carries the menus and closing it ends the program.
Form* ProgramPlayed::Shell() {
  const bool plan = program_->Shared().GUIText == QStringLiteral("2");
  return program_->FindForm(plan ? QStringLiteral("OST") : QStringLiteral("Tamo"));
}

}  // namespace tamo::player
