#include "plans/pagelabels.h"

#include <algorithm>
#include <utility>

namespace tamo {
namespace {

constexpr int kMostRoman = 4999;
constexpr int kMostLetters = 26 * 20;

QString Roman(int number) {
  static const std::pair<int, const char*> parts[] = {
      {1000, "M"}, {900, "CM"}, {500, "D"}, {400, "CD"}, {100, "C"}, {90, "XC"}, {50, "L"},
      {40, "XL"},  {10, "X"},   {9, "IX"},  {5, "V"},    {4, "IV"},  {1, "I"}};
  QString text;
  for (const auto& [value, letters] : parts) {
    for (; number >= value; number -= value) text += QLatin1String(letters);
  }
  return text;
}

// A to Z, then AA to ZZ, AAA ...
QString Letters(int number) {
  return QString((number - 1) / 26 + 1, QLatin1Char(static_cast<char>('A' + (number - 1) % 26)));
}

QString Counted(char style, int number) {
  const bool roman = (style == 'R' || style == 'r') && number >= 1 && number <= kMostRoman;
  const bool letters = (style == 'A' || style == 'a') && number >= 1 && number <= kMostLetters;
  if (roman) return style == 'R' ? Roman(number) : Roman(number).toLower();
  if (letters) return style == 'A' ? Letters(number) : Letters(number).toLower();
  return style == 0 ? QString() : QString::number(number);
}

}  // namespace

QStringList PageLabels(std::vector<LabelRange> ranges, int pages) {
  QStringList labels;
  if (ranges.empty()) return labels;
  std::stable_sort(ranges.begin(), ranges.end(),
                   [](const LabelRange& a, const LabelRange& b) { return a.from < b.from; });
  size_t next = 0;
  LabelRange own = {0, 'D', {}, 1};
  for (int page = 0; page < pages; ++page) {
    while (next < ranges.size() && ranges[next].from <= page) own = ranges[next++];
    const qint64 number = qint64(own.start) + page - own.from;
    labels +=
        own.prefix + Counted(own.style, static_cast<int>(std::clamp<qint64>(number, 0, 1 << 30)));
  }
  return labels;
}

}  // namespace tamo
