#include "records/sheetscalefile.h"

#include <algorithm>

#include "common/failure.h"
#include "common/textlines.h"

namespace tamo {
namespace {

constexpr int kParts = 7;
constexpr qsizetype kLongestNumber = 20;  // letters of a scale's number
constexpr qsizetype kLongestUnit = 40;
constexpr int kMostPages = 100000;

QString PathIn(const QString& folder, const QString& separator) {
  return folder + separator + QStringLiteral("SheetScales.tamo");
}

bool Fits(const QStringList& parts) {
  if (parts.size() != kParts || parts[1].isEmpty()) return false;
  const int page = parts[2].toInt();
  return page >= 1 && page <= kMostPages && parts[3].size() <= kLongestNumber &&
         parts[4].size() <= kLongestNumber && parts[5].size() <= kLongestUnit;
}

}  // namespace

std::vector<KeptSheetScale> ReadSheetScales(Files& files, const QString& configFolder,
                                            const QString& separator) {
  std::vector<KeptSheetScale> scales;
  QString text;
  if (files.ReadStored(PathIn(configFolder, separator), text) != kNoError) return scales;
  for (const QString& line : WholeLines(text)) {
    const QStringList parts = line.split(QLatin1Char('\t'));
    if (!Fits(parts) || scales.size() >= kMostSheetScales) continue;
    const KeptSheetScale scale = {parts[0],
                                  parts[1],
                                  parts[2].toInt(),
                                  parts[3],
                                  parts[4],
                                  parts[5],
                                  parts[6] == QLatin1String("1")};
    const bool known = std::any_of(scales.begin(), scales.end(), [&](const KeptSheetScale& other) {
      return other.SameSheet(scale);
    });
    if (!known) scales.push_back(scale);
  }
  return scales;
}

void WriteSheetScales(Files& files, const QString& configFolder, const QString& separator,
                      const std::vector<KeptSheetScale>& scales) {
  QStringList lines;
  for (const KeptSheetScale& scale : scales) {
    if (size_t(lines.size()) >= kMostSheetScales) break;
    const QStringList parts = {scale.project,
                               scale.plan,
                               QString::number(scale.page),
                               scale.scale1,
                               scale.scale2,
                               scale.text5,
                               scale.checked ? QStringLiteral("1") : QStringLiteral("0")};
    const bool plain = std::none_of(parts.begin(), parts.end(), [](const QString& part) {
      return part.contains(QLatin1Char('\t')) || part.contains(QLatin1Char('\n')) ||
             part.contains(QLatin1Char('\r'));
    });
    if (plain) lines += parts.join(QLatin1Char('\t'));
  }
  files.ReplaceFile(PathIn(configFolder, separator), JoinedLines(lines).toUtf8());
}

}  // namespace tamo
