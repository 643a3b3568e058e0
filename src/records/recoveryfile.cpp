#include "records/recoveryfile.h"

#include <QMap>
#include <utility>

#include "common/failure.h"
#include "common/paths.h"
#include "common/programname.h"
#include "common/textlines.h"

namespace tamo {
namespace {

const QString kEnding = QStringLiteral(".tamo-recovery");

const QString kLastLine = QStringLiteral("end");  // of a file that is whole

// The numbers sort as their texts do.
QString FileName(const ProgramRun& run, int number) {
  return QStringLiteral("%1.%2.%3%4")
      .arg(ProgramNameOf(run).Text(), run.run)
      .arg(number, 9, 10, QLatin1Char('0'))
      .arg(kEnding);
}

QString RunOf(const QString& fileName) {
  return fileName.section(QLatin1Char('.'), 3, 3);
}

bool IsLeft(const QString& fileName) {
  ProgramName program;
  if (!fileName.endsWith(kEnding) || !ReadProgramName(fileName, program)) return false;
  if (!program.OfThisMachine()) return false;
  ProgramRun run = program.Run();
  run.run = RunOf(fileName);
  return RunIsGone(run);
}

// One line: line breaks and the sign for them are written out.
QString OneLine(QString text) {
  text.replace(QLatin1String("\\"), QLatin1String("\\\\"));
  text.replace(QLatin1String("\r"), QLatin1String("\\r"));
  return text.replace(QLatin1String("\n"), QLatin1String("\\n"));
}

QString Unfolded(const QString& line) {
  QString text;
  for (qsizetype i = 0; i < line.size(); ++i) {
    QChar c = line[i];
    if (c == QLatin1Char('\\') && i + 1 < line.size()) {
      c = line[++i];
      if (c == QLatin1Char('r')) c = QLatin1Char('\r');
      if (c == QLatin1Char('n')) c = QLatin1Char('\n');
    }
    text += c;
  }
  return text;
}

QStringList LinesOf(const QList<WaitingEntries>& entries) {
  QStringList lines;
  for (const WaitingEntries& entry : entries) {
    lines += {OneLine(entry.form), OneLine(entry.dataPath), OneLine(entry.project),
              QString::number(entry.values.size())};
    for (const auto& [name, text] : entry.values) lines += name + QLatin1Char('=') + OneLine(text);
  }
  return lines;
}

void AddEntries(const QStringList& lines, QList<WaitingEntries>& entries) {
  constexpr qsizetype kHead = 4;
  for (qsizetype at = 0; at + kHead <= lines.size();) {
    WaitingEntries entry{Unfolded(lines[at]), Unfolded(lines[at + 1]), Unfolded(lines[at + 2]), {}};
    const qsizetype count = lines[at + 3].toInt();
    at += kHead;
    for (qsizetype i = 0; i < count && at < lines.size(); ++i, ++at) {
      const qsizetype sign = lines[at].indexOf(QLatin1Char('='));
      if (sign > 0) entry.values += {lines[at].left(sign), Unfolded(lines[at].mid(sign + 1))};
    }
    entries += entry;
  }
}

}  // namespace

QString WaitingEntries::Value(const QString& name) const {
  return Values(name).value(0);
}

QStringList WaitingEntries::Values(const QString& name) const {
  QStringList found;
  for (const auto& [field, text] : values) {
    if (field == name) found += text;
  }
  return found;
}

RecoveryFile::RecoveryFile(Disk& disk, const QString& folder)
    : disk_(disk), folder_(folder), run_(BeginRun()) {}

void RecoveryFile::RemoveAllBut(const QStringList& kept) {
  paths_.removeIf([&](const QString& path) {
    if (kept.contains(path)) return false;
    const int error = disk_.RemoveFile(path);
    return error == kNoError || error == kFileNotFound;
  });
}

int RecoveryFile::Write(const QList<WaitingEntries>& entries) {
  if (entries.isEmpty()) {
    removed_ = removed_ || !paths_.isEmpty();
    confirmed_.clear();
    RemoveAllBut({});
    return paths_.isEmpty() ? kNoError : kNoAccess;
  }
  const QString path = InFolder(folder_, FileName(run_, number_ + 1));
  int handle = -1;
  int error = disk_.OpenNew(path, handle);
  if (error != kNoError) return error;
  error = disk_.Write(handle, JoinedLines(LinesOf(entries) + QStringList(kLastLine)).toUtf8());
  const int closing = disk_.Close(handle);
  if (error == kNoError) error = closing;
  if (error != kNoError) {
    disk_.RemoveFile(path);
    return error;
  }
  ++number_;
  paths_ += path;
  RemoveAllBut({confirmed_, path});
  return kNoError;
}

int RecoveryFile::Confirm() {
  if (paths_.isEmpty()) {
    if (removed_ && disk_.SyncFolder(BareFolder(folder_)) == kNoError) removed_ = false;
    return removed_ ? kNotConfirmed : kNoError;
  }
  if (paths_.last() == confirmed_) return kNoError;
  int handle = -1;
  int error = disk_.OpenAtEnd(paths_.last(), handle);
  if (error != kNoError) return error;
  error = disk_.Sync(handle);
  const int closing = disk_.Close(handle);
  if (error == kNoError) error = closing;
  if (error == kNoError) error = disk_.SyncFolder(BareFolder(folder_));
  if (error != kNoError) return error;
  confirmed_ = paths_.last();
  removed_ = false;
  RemoveAllBut({confirmed_});
  return kNoError;
}

// Of a run's files the newest that is whole counts.
QList<WaitingEntries> ReadLeftRecoveries(Disk& disk, const QString& folder, QStringList& files) {
  QMap<QString, QStringList> runs;  // the lines of each
  for (const QString& name : disk.Names(folder)) {
    if (!IsLeft(name)) continue;
    const QString path = InFolder(folder, name);
    QByteArray bytes;
    if (disk.Read(path, bytes) != kNoError) continue;
    files += path;
    const QStringList lines = WholeLines(DecodedText(bytes));
    QStringList& known = runs[RunOf(name)];
    if (known.isEmpty() || lines.value(lines.size() - 1) == kLastLine) known = lines;
  }
  QList<WaitingEntries> entries;
  for (const QStringList& lines : std::as_const(runs)) AddEntries(lines, entries);
  return entries;
}

}  // namespace tamo
