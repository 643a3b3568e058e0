#include "windows/windowkeys.h"

#include <QDir>
#include <QFileDialog>
#include <QShortcut>

#include "common/paths.h"
#include "program/program.h"
#include "program/windowways.h"
#include "windows/helptopics.h"
#include "windows/keyspage.h"

namespace tamo {
namespace {

constexpr int kMostWindows = 9;

// The entry of the shell that carries the menus.
void ChooseWhatChanged(Program& program) {
  for (const char* shell : {"Tamo", "OST"}) {
    Form* form = program.FindForm(QLatin1String(shell));
    MenuEntry* entry = form == nullptr ? nullptr : form->FindMenu(QStringLiteral("WhatChanged"));
    if (entry == nullptr || !entry->Choosable()) continue;
    program.GetDesk().ChooseMenu(*entry);
    return;
  }
}

void On(FormWindow& window, const QKeySequence& keys, const std::function<void()>& action) {
  auto* shortcut = new QShortcut(keys, &window);
  shortcut->setAutoRepeat(false);
  QObject::connect(shortcut, &QShortcut::activated, &window, action);
}

// The folder of the plan that is open, or the one from which a plan was picked last.
QString PlanFolder(Program& program) {
  const Form* ost = program.FindForm(QStringLiteral("OST"));
  const auto* plan = dynamic_cast<const TextField*>(ost->Find(QStringLiteral("PlanLocation")));
  if (plan != nullptr && !plan->Empty()) return FolderOf(NativePath(plan->Text()));
  const auto* folders = dynamic_cast<const FileBrowser*>(ost->Find(QStringLiteral("Dir1")));
  return folders == nullptr ? QString() : folders->Folder();
}

}  // namespace

QString AskForPlan(QWidget* over, const QString& folder) {
  return QDir::toNativeSeparators(QFileDialog::getOpenFileName(
      over, QStringLiteral("Open a plan"), folder, QStringLiteral("Plans (*.pdf *.PDF)")));
}

void GiveWindowKeys(FormWindow& window, Program& program,
                    const std::function<QString(QWidget*)>& askForPlan) {
  Form& form = window.GetForm();
  On(window, QKeySequence(Qt::Key_F1), [&program, &form] { ShowHelp(program, form); });
  On(window, QKeySequence(Qt::Key_F8), [&program] { ChooseWhatChanged(program); });
  On(window, QKeySequence(Qt::CTRL | Qt::Key_P), [&program, &form] { program.PrintFront(form); });
  On(window, QKeySequence(Qt::CTRL | Qt::Key_Slash), [&window] { ShowKeysPage(window); });
  On(window, QKeySequence(Qt::CTRL | Qt::Key_O), [&window, &program, &askForPlan] {
    const QString plan =
        askForPlan ? askForPlan(&window) : AskForPlan(&window, PlanFolder(program));
    if (!plan.isEmpty()) program.OpenPlan(plan);
  });
  for (int number = 1; number <= kMostWindows; ++number) {
    On(window, QKeySequence(static_cast<int>(Qt::CTRL) | (Qt::Key_0 + number)),
       [&program, number] { GoToWindow(program.GetDesk(), number); });
  }
  window.onPlanDropped = [&program](const QString& path) {
    program.OpenPlan(QDir::toNativeSeparators(path));
  };
}

}  // namespace tamo
