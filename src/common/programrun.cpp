#include "common/programrun.h"

#include <signal.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QSet>
#include <QSysInfo>
#include <QUuid>
#include <cerrno>
#include <mutex>

namespace tamo {
namespace {

struct LiveRuns {
  std::mutex mutex;
  QSet<QString> names;
};

LiveRuns& Live() {
  static LiveRuns runs;
  return runs;
}

QByteArray FirstLine(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readLine().trimmed() : QByteArray();
}

// The machine's own start, and when the process began since then: the 22nd word of its state, of
// which the second one, its name, may hold blanks and parentheses.
QString StartOf(qint64 process) {
  QFile state(QStringLiteral("/proc/%1/stat").arg(process));
  if (!state.open(QIODevice::ReadOnly)) return {};
  const QByteArray text = state.readAll();
  const QList<QByteArray> words = text.mid(text.lastIndexOf(')') + 2).split(' ');
  static const QByteArray boot = FirstLine(QStringLiteral("/proc/sys/kernel/random/boot_id"));
  return words.size() > 19 ? QString::fromLatin1(boot + ' ' + words[19]) : QString();
}

// The system's own number of the machine is nobody else's business: it is not written down as it
// is. Machines that were copied whole share it, but not their names. What runs in a container of
// its own has process numbers of its own.
QString MachineId() {
  QByteArray id = QSysInfo::machineUniqueId();
  id += QSysInfo::machineHostName().toUtf8();
  char space[64] = {};
  if (::readlink("/proc/self/ns/pid", space, sizeof space - 1) > 0) id += space;
  const QByteArray hash = QCryptographicHash::hash("tamo" + id, QCryptographicHash::Sha256);
  return QString::fromLatin1(hash.toHex().left(16));
}

QString UserName() {
  for (const char* name : {"USER", "LOGNAME", "USERNAME"}) {
    QString user = qEnvironmentVariable(name).simplified();
    if (!user.isEmpty()) return user;
  }
  return QStringLiteral("user %1").arg(::getuid());
}

}  // namespace

ProgramRun BeginRun() {
  const qint64 process = QCoreApplication::applicationPid();
  static const QString machineId = MachineId();
  ProgramRun run{UserName(),       QSysInfo::machineHostName().simplified(),  machineId, process,
                 StartOf(process), QUuid::createUuid().toString(QUuid::Id128)};
  const std::lock_guard lock(Live().mutex);
  Live().names.insert(run.run);
  return run;
}

void EndRun(const ProgramRun& run) {
  const std::lock_guard lock(Live().mutex);
  Live().names.remove(run.run);
}

bool RunIsGone(const ProgramRun& run) {
  if (run.process <= 0) return false;
  if (run.process == QCoreApplication::applicationPid() &&
      run.processStart == StartOf(run.process)) {
    const std::lock_guard lock(Live().mutex);
    return !Live().names.contains(run.run);
  }
  if (::kill(static_cast<pid_t>(run.process), 0) != 0 && errno == ESRCH) return true;
  const QString start = StartOf(run.process);
  return !start.isEmpty() && !run.processStart.isEmpty() && start != run.processStart;
}

}  // namespace tamo
