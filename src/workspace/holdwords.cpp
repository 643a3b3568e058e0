#include "workspace/holdwords.h"

namespace tamo {
namespace {

QString Machine(const InUse& sign) {
  return sign.owner.machine.isEmpty() ? QStringLiteral("another computer") : sign.owner.machine;
}

QString User(const InUse& sign) {
  return sign.owner.user.isEmpty() ? QStringLiteral("somebody") : sign.owner.user;
}

QString LocalTime(const QDateTime& time, const QDateTime& now) {
  const QDateTime local = time.toLocalTime();
  const bool today = local.date() == now.toLocalTime().date();
  return local.toString(today ? QStringLiteral("h:mm AP") : QStringLiteral("M/d/yy h:mm AP"));
}

}  // namespace

QString ReadOnlyText(const InUse& sign, const QDateTime& now) {
  if (!sign.Whole())
    return QStringLiteral(
        "This project is open in another program; who it is can't be read. You can read the "
        "project; it becomes writable when it is closed there.");
  return QStringLiteral(
             "This project is open on %1 by %2 since %3. You can read it; it becomes writable when "
             "it is closed there.")
      .arg(Machine(sign), User(sign), LocalTime(sign.taken, now));
}

QString ReadOnlyTitle(const InUse& sign) {
  if (!sign.Whole()) return QStringLiteral("read only, open in another program");
  return QStringLiteral("read only, open on %1 by %2").arg(Machine(sign), User(sign));
}

QString TakeOverQuestion(const InUse& sign, const QDateTime& now) {
  if (!sign.Whole())
    return QStringLiteral(
        "Another program has this project open, but has given no sign for two minutes, and who it "
        "is can't be read.\n\nIs it closed everywhere else, so that it can be written here? What a "
        "program that still has it open saves later would be lost.");
  const QDateTime last = sign.renewed.isValid() ? sign.renewed : sign.taken;
  return QStringLiteral(
             "%1 has this project open on %2, but the last sign of it is of %3.\n\nIs it closed "
             "there, so that it can be written here? What a program that still has it open saves "
             "later would be lost.")
      .arg(User(sign), Machine(sign), LocalTime(last, now));
}

QString TakenOverText(const InUse& sign, const QStringList& unsaved) {
  const QString saved = unsaved.isEmpty()
                            ? QStringLiteral("What you entered until then is saved")
                            : QStringLiteral("What you entered until then is saved, but for:\n%1\n")
                                  .arg(unsaved.join(QLatin1Char('\n')));
  return QStringLiteral(
             "This project was taken over on %1 by %2. %3; from here on you can only read it, "
             "until it is closed there.")
      .arg(Machine(sign), User(sign), saved);
}

QString WaitingQuestion(const QStringList& waiting) {
  return QStringLiteral(
             "This project can be written here again. What you entered before it was taken over "
             "still waits to be saved:\n%1\n\nSave it now over what stands there? With No it is "
             "dropped.")
      .arg(waiting.join(QLatin1Char('\n')));
}

QString UnsignedTitle() {
  return QStringLiteral("other programs can't be told that this project is open");
}

QString GoneText() {
  return QStringLiteral(
      "The folder of this project is gone: it was deleted elsewhere, or its drive can't be "
      "reached. Nothing is written there until it is back.");
}

QString GoneTitle() {
  return QStringLiteral("read only, its folder is gone");
}

}  // namespace tamo
