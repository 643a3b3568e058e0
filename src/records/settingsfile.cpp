#include "records/settingsfile.h"

#include <algorithm>

#include "common/failure.h"
#include "common/numbers.h"
#include "common/paths.h"
#include "common/textlines.h"

namespace tamo {
namespace {

constexpr int kReserveLines = 11;
constexpr int kColourLength = 9;
constexpr double kWidest = 100;
const QString kRed = QStringLiteral("255000000");
const QString kWholeQuantities = QStringLiteral("WholeQuantities");
const QString kLook = QStringLiteral("Look");  // before "Light" or "Dark", in the line before that

QString SettingsPath(Files& files, const QString& programFolder, const QString& configFolder,
                     bool forWriting) {
  const QString name = PlatformSeparator() + QStringLiteral("Settings.tamo");
  QString beside = programFolder + name;
  if (files.GetDisk().CanWrite(programFolder)) return beside;
  QString own = configFolder + name;
  return forWriting || files.Exists(own) ? own : beside;
}

QString SettingsPath(Files& files, const Platform& platform, bool forWriting) {
  return SettingsPath(files, platform.programFolder, platform.configFolder, forWriting);
}

// A choice that stands in the file, or "" for anything else.
QString OneOf(const QString& line, const char* one, const char* other) {
  return line == QLatin1String(one) || line == QLatin1String(other) ? line : QString();
}

void TakeLines(const QStringList& lines, SettingsRecord& record) {
  LineReader reader(lines);
  QString line;
  const auto next = [&] {
    if (!reader.Read(line)) return false;
    ++record.lines;
    return true;
  };
  for (QString* field : {&record.estimatorNumber, &record.estimatorName, &record.companyName,
                         &record.telephone, &record.dataPath}) {
    if (next()) *field = line;
  }
  if (!next()) return;
  record.lineColor = line.size() == kColourLength ? line : kRed;
  if (!next()) return;
  record.lineWidth = static_cast<int>(std::clamp(Truncated(Value(line)), 0.0, kWidest));
  record.interfaceMode.clear();
  if (!next()) return;
  record.interfaceMode = OneOf(line, "1", "2");
  if (!next()) return;
  record.autoCheck = Value(line) == 1 ? 1 : 0;
  record.scales.clear();
  if (next()) record.scales = OneOf(line, "3", "4");
}

}  // namespace

int ReadSettings(Files& files, const Platform& platform, SettingsRecord& record) {
  return ReadSettings(files, platform.programFolder, platform.configFolder, record);
}

int ReadSettings(Files& files, const QString& programFolder, const QString& configFolder,
                 SettingsRecord& record) {
  QStringList lines;
  const int error = files.ReadLines(SettingsPath(files, programFolder, configFolder, false), lines);
  if (error != kNoError) return error;
  record.wholeQuantities = !lines.isEmpty() && lines.last() == kWholeQuantities;
  const QString look = lines.size() < 2 ? QString() : lines[lines.size() - 2];
  record.look = look.startsWith(kLook) ? look.mid(kLook.size()) : QString();
  record.lines = 0;
  TakeLines(lines, record);
  return kNoError;
}

int WriteSettings(Files& files, const Platform& platform, const SettingsRecord& record) {
  QStringList lines = {record.estimatorNumber,
                       record.estimatorName,
                       record.companyName,
                       record.telephone,
                       record.dataPath,
                       record.lineColor,
                       QString::number(record.lineWidth)};
  if (!record.interfaceMode.isEmpty()) lines += record.interfaceMode;
  lines += SignedNumberText(record.autoCheck) + QLatin1Char(' ');
  if (!record.scales.isEmpty()) lines += record.scales;
  for (int i = 2; i < kReserveLines; ++i) lines += QString();
  lines += record.look.isEmpty() ? QString() : kLook + record.look;
  lines += record.wholeQuantities ? kWholeQuantities : QString();
  const QString path = SettingsPath(files, platform, true);
  files.MakeFolders(FolderOf(path));
  return files.SaveLines(path, lines);
}

bool WriteWholeQuantities(Files& files, const Platform& platform, bool on) {
  QStringList lines;
  if (files.ReadLines(SettingsPath(files, platform, false), lines) != kNoError) return false;
  if (!lines.isEmpty() && (lines.last().isEmpty() || lines.last() == kWholeQuantities))
    lines.removeLast();
  lines += on ? kWholeQuantities : QString();
  files.SaveLines(SettingsPath(files, platform, true), lines);
  return true;
}

}  // namespace tamo
