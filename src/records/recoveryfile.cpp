#include "records/recoveryfile.h"

#include "common/failure.h"
#include "common/paths.h"
#include "common/programname.h"
#include "common/replacement.h"
#include "common/textlines.h"

namespace tamo {
namespace {

const QString kEnding = QStringLiteral(".tamo-recovery");

QString FileName(const ProgramRun& run) {
  return ProgramNameOf(run).Text() + QLatin1Char('.') + run.run + kEnding;
}

bool IsLeft(const QString& fileName) {
  ProgramName program;
  if (!fileName.endsWith(kEnding) || !ReadProgramName(fileName, program)) return false;
  if (!program.OfThisMachine()) return false;
  ProgramRun run = program.Run();
  run.run = fileName.section(QLatin1Char('.'), 3, 3);
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

int WriteRecovery(Disk& disk, const QString& folder, const ProgramRun& run,
                  const QList<WaitingEntries>& entries) {
  const QString path = InFolder(folder, FileName(run));
  if (entries.isEmpty()) return disk.Exists(path) ? disk.RemoveFile(path) : kNoError;
  Replacement fresh(disk, path);
  const int error = fresh.Begin();
  if (error != kNoError) return error;
  return fresh.Finish(disk.Write(fresh.Handle(), JoinedLines(LinesOf(entries)).toUtf8()));
}

QList<WaitingEntries> ReadLeftRecoveries(Disk& disk, const QString& folder, QStringList& files) {
  QList<WaitingEntries> entries;
  for (const QString& name : disk.Names(folder)) {
    if (!IsLeft(name)) continue;
    const QString path = InFolder(folder, name);
    QByteArray bytes;
    if (disk.Read(path, bytes) != kNoError) continue;
    AddEntries(WholeLines(DecodedText(bytes)), entries);
    files += path;
  }
  return entries;
}

}  // namespace tamo
