#include "program/shell.h"

#include <algorithm>

#include "common/failure.h"

namespace tamo {

void Shell::ShowMenus(Form& form, std::initializer_list<const char*> names, bool shown) {
  for (const char* name : names) {
    if (MenuEntry* entry = form.FindMenu(QLatin1String(name))) entry->SetShown(shown);
  }
}

void Shell::EnterMode(int mode) {
  const bool online = mode == 2;
  kit_.shared.GUIText = online ? QStringLiteral("2") : QStringLiteral("1");
  ShowMenus(
      ost_,
      {"ProjectS", "Pricing2", "Estimate", "Reports1", "Settings1", "Spacer1", "Documentation"},
      online);
  ShowMenus(ost_, {"Spacer2"}, !online);
  if (online) ShowMenus(ost_, {"Exit"}, true);
  ShowMenus(main_,
            {"Project", "Pricing2", "Estimate", "Reports1", "Settings1", "Docs1", "Exit", "OST1",
             "Drawings"},
            !online);
  ShowTitles();
  BringUpShell();
  if (!online && settings_.Visible()) settings_.Show(&main_);
}

void Shell::ShowTitles() {
  const QString& note = kit_.shared.TitleNote;
  const QString behind = note.isEmpty() ? QString() : QStringLiteral(" - ") + note;
  ost_.SetCaption((Online() ? QStringLiteral("Digital Sheetwell Beta 1.4")
                            : QStringLiteral("Digital Plan Takeoff")) +
                  behind);
  main_.SetCaption((Online() ? QStringLiteral("Projects") : QStringLiteral("Estimating Beta 1.4")) +
                   behind);
}

// The shell is shown before the other form goes, so that no third window comes to the front in
// between.
void Shell::BringUpShell() {
  if (Online()) {
    ost_.Show();
    main_.Hide();
  } else {
    main_.Show(&ost_);
    ost_.Hide();
  }
}

void Shell::ShowMainForm() {
  main_.Show(&ost_);
}
void Shell::HideMainForm() {
  main_.Hide();
}
Form& Shell::ShellForm() const {
  return Online() ? static_cast<Form&>(ost_) : main_;
}

void Shell::AskForEstimatorNumber() {
  settings_.Show(&ShellForm());
  kit_.desk.Focus(settings_.EstimatorNumber);
}

void Shell::EndProgram() {
  if (!running_) return;
  running_ = false;
  if (onEnded) onEnded();
}

bool Shell::MayEnd() {
  if (beforeEnd) beforeEnd();
  const auto& pending = kit_.files.PendingSaves();
  if (pending.empty() || kit_.files.TryAgain()) return true;
  QString files;
  const bool allStand = std::all_of(pending.begin(), pending.end(), [](const Files::Pending& save) {
    return save.reason == kNotConfirmed;
  });
  for (const Files::Pending& save : pending) files += QStringLiteral("\n") + save.path;
  if (allStand) {
    return kit_.desk.GetMessages().Ask(
        QStringLiteral("These files are saved, but the device did not confirm it, so that a power "
                       "cut could bring back their old state:%1\n\nEnd the program all the same?")
            .arg(files));
  }
  return kit_.desk.GetMessages().Ask(
      QStringLiteral("These files could not be saved, because %1:%2\n\nEnd the program and lose "
                     "what they would hold?")
          .arg(pending.back().held ? ReadReasonText(pending.back().reason)
                                   : ReasonText(pending.back().reason),
               files));
}

void Shell::ExitMain() {
  if (Online()) {
    ost_.Show();
    main_.Hide();
  } else if (MayEnd()) {
    EndProgram();
  }
}

void Shell::ExitOst() {
  if (!Online()) {
    BringUpShell();
  } else if (MayEnd()) {
    EndProgram();
  }
}

bool Shell::CloseMain() {
  if (Online()) return true;
  if (!MayEnd()) return false;
  EndProgram();
  return true;
}

bool Shell::CloseOst() {
  if (!Online()) {
    main_.Show();
    return true;
  }
  if (!MayEnd()) return false;
  EndProgram();
  return true;
}

}  // namespace tamo
