#include "history/versionfile.h"

#include <algorithm>
#include <array>
#include <utility>

#include "common/failure.h"
#include "common/paths.h"
#include "history/historyrecord.h"
#include "history/linedelta.h"

namespace tamo {
namespace {

using Reason = VersionHead::Reason;

constexpr char kTitle[] = "Tamo: a bid as it stood";
constexpr qint64 kHeadSize = 4096;  // bytes; names are shorter
constexpr qsizetype kLongestName = 200;
constexpr std::array<std::pair<Reason, const char*>, 3> kReasons = {
    {{Reason::Kept, "kept"},
     {Reason::BeforeBringingBack, "kept before another version was brought back"},
     {Reason::Deleted, "kept when the project was deleted"}}};

QByteArray OneLine(const QString& text) {
  return text.simplified().left(kLongestName).toUtf8();
}

QByteArray ReasonLine(Reason reason) {
  for (const auto& [value, name] : kReasons) {
    if (value == reason) return name;
  }
  return {};
}

QByteArray EndLine(qsizetype files) {
  return "End: " + QByteArray::number(files) + " files";
}

// What stands behind `label` in one of the first lines.
bool Fact(const QList<QByteArray>& lines, const char* label, QByteArray& fact) {
  for (const QByteArray& line : lines) {
    if (!line.startsWith(label)) continue;
    fact = line.mid(static_cast<qsizetype>(qstrlen(label))).trimmed();
    return true;
  }
  return false;
}

std::vector<Version> VersionsIn(Disk& disk, const QString& folder) {
  std::vector<Version> versions;
  for (const QString& name : disk.Names(BareFolder(folder))) {
    if (!name.endsWith(QLatin1String(kVersionEnding))) continue;
    std::shared_ptr<FileReader> reader;
    if (disk.OpenToRead(folder + name, reader) != kNoError) continue;
    QByteArray text(kHeadSize, '\0');
    qint64 got = 0;
    if (reader->ReadAt(0, text.data(), kHeadSize, got) != kNoError) continue;
    text.truncate(got);
    Version version{{}, folder + name};
    if (ReadVersionHead(text, version.head)) versions.push_back(std::move(version));
  }
  // Of two of one moment the later one has the longer name, or the higher number in it.
  std::sort(versions.begin(), versions.end(), [](const Version& a, const Version& b) {
    if (a.head.when != b.head.when) return a.head.when > b.head.when;
    return a.path.size() != b.path.size() ? a.path.size() > b.path.size() : a.path > b.path;
  });
  return versions;
}

}  // namespace

QByteArray VersionText(const VersionHead& head, const BidState& state) {
  QByteArray text = QByteArray(kTitle) + "\nVersion: " + OneLine(head.name) +
                    "\nProject: " + OneLine(head.project) +
                    "\nProject name: " + OneLine(head.projectName) + "\nKept: " + head.when +
                    "\nReason: " + ReasonLine(head.reason) + "\n\n";
  for (auto file = state.files.constBegin(); file != state.files.constEnd(); ++file)
    text += RecordText(WholeRecord(head.when, file.key(), file.value()));
  return text + "@ " + EndLine(state.files.size()) + '\n';
}

bool ReadVersionHead(const QByteArray& text, VersionHead& head) {
  QList<QByteArray> lines;
  for (QByteArray line : text.split('\n')) {
    if (line.endsWith('\r')) line.chop(1);
    if (line.isEmpty() || line.startsWith('@')) break;
    lines += line;
  }
  if (lines.isEmpty() || lines.front() != kTitle) return false;
  QByteArray name;
  QByteArray project;
  QByteArray projectName;
  QByteArray reason;
  if (!Fact(lines, "Version:", name) || !Fact(lines, "Project:", project) ||
      !Fact(lines, "Project name:", projectName) || !Fact(lines, "Kept:", head.when) ||
      !Fact(lines, "Reason:", reason))
    return false;
  head.name = QString::fromUtf8(name);
  head.project = QString::fromUtf8(project);
  head.projectName = QString::fromUtf8(projectName);
  for (const auto& [value, words] : kReasons) {
    if (reason == words) head.reason = value;
  }
  return head.when.size() == kWhenSize && NameRefusal(head.project).isEmpty();
}

bool ReadVersionText(const QByteArray& text, VersionHead& head, BidState& state) {
  if (!ReadVersionHead(text, head)) return false;
  state = {head.project, {}};
  RecordScanner scanner(text);
  HistoryRecord record;
  QByteArray bytes;
  while (scanner.Next(record)) {
    if (record.kind != HistoryRecord::Kind::Whole || !BelongsToBid(head.project, record.path) ||
        record.path.contains(QLatin1String("../")) || !ApplyLineDelta({}, record.body, bytes) ||
        CheckOf(bytes) != record.check)
      return false;
    state.files.insert(record.path, bytes);
  }
  return text.endsWith("\n@ " + EndLine(state.files.size()) + '\n');
}

std::vector<Version> VersionsOf(Disk& disk, const HistoryFolder& folder, const QString& project) {
  return VersionsIn(disk, folder.VersionsOf(project));
}

std::vector<Version> DeletedBids(Disk& disk, const HistoryFolder& folder) {
  return VersionsIn(disk, folder.Deleted());
}

bool ReadVersion(Disk& disk, const QString& path, VersionHead& head, BidState& state) {
  QByteArray text;
  return disk.Read(path, text) == kNoError && ReadVersionText(text, head, state);
}

int WriteVersion(Disk& disk, const HistoryFolder& folder, const VersionHead& head,
                 const BidState& state, QString& path) {
  for (const QString& level : {folder.Path(), folder.Versions(), folder.VersionsOf(head.project)})
    MakeHistoryFolder(disk, level);
  QString stamp = QString::fromLatin1(head.when.left(19));
  stamp.remove(QLatin1Char(':'));
  for (int i = 1;; ++i) {
    const QString more = i == 1 ? QString() : QStringLiteral("-%1").arg(i);
    path = folder.VersionsOf(head.project) + stamp + more + QLatin1String(kVersionEnding);
    if (!disk.Exists(path)) break;
  }
  return WriteHistoryFile(disk, path, VersionText(head, state));
}

}  // namespace tamo
