#include "player/cast.h"

namespace tamo::player {

std::pair<QString, QString> SplitName(const QString& fullName) {
  const qsizetype dot = fullName.indexOf(QLatin1Char('.'));
  if (dot <= 0 || dot == fullName.size() - 1)
    NotUnderstood(QStringLiteral("FORM.CONTROL is expected, not \"%1\"").arg(fullName));
  return {fullName.left(dot), fullName.mid(dot + 1)};
}

Form& FormNamed(Played& played, const QString& name) {
  Form* form = played.FindForm(name);
  if (form == nullptr) NotUnderstood(QStringLiteral("there is no form %1").arg(name));
  return *form;
}

Control& ControlNamed(Played& played, const QString& fullName) {
  const auto [formName, name] = SplitName(fullName);
  const Form& form = FormNamed(played, formName);
  if (Control* control = form.Find(name)) return *control;
  if (form.FindMenu(name) != nullptr)
    NotUnderstood(QStringLiteral("%1 is a menu entry and no control").arg(fullName));
  NotUnderstood(QStringLiteral("%1 has no control %2").arg(formName, name));
}

MenuEntry& EntryNamed(Played& played, const QString& fullName) {
  const auto [formName, name] = SplitName(fullName);
  MenuEntry* entry = FormNamed(played, formName).FindMenu(name);
  if (entry == nullptr)
    NotUnderstood(QStringLiteral("%1 has no menu entry %2").arg(formName, name));
  return *entry;
}

void MustReach(const Form& form) {
  if (!form.Visible())
    Fail(QStringLiteral("a person can't reach it: the window of %1 is not visible")
             .arg(form.Name()));
}

void MustReach(const Control& control) {
  MustReach(control.Owner());
  if (!control.Shown())
    Fail(QStringLiteral("a person can't reach it: %1 is hidden").arg(control.FullName()));
  for (const Frame* frame = control.Container(); frame != nullptr; frame = frame->Container()) {
    if (!frame->Shown())
      Fail(QStringLiteral("a person can't reach %1: its frame %2 is hidden")
               .arg(control.FullName(), frame->Name()));
  }
  if (!control.Enabled())
    Fail(QStringLiteral("a person can't use it: %1 is disabled").arg(control.FullName()));
}

void MustReach(const MenuEntry& entry) {
  MustReach(entry.Owner());
  if (entry.Choosable()) return;
  for (const MenuEntry* at = &entry; at != nullptr; at = at->Parent()) {
    if (!at->Shown() && !at->IsPopup())
      Fail(QStringLiteral("the entry can't be chosen: %1 is hidden").arg(at->FullName()));
    if (!at->Enabled())
      Fail(QStringLiteral("the entry can't be chosen: %1 is disabled").arg(at->FullName()));
  }
  Fail(QStringLiteral("the entry %1 can't be chosen").arg(entry.FullName()));
}

void MustHaveRow(const OrderedList& list, int row) {
  if (row < 0 || row >= list.Count())
    Fail(QStringLiteral("%1 has no row %2, it has %3 rows")
             .arg(list.FullName())
             .arg(row)
             .arg(list.Count()));
}

}  // namespace tamo::player
