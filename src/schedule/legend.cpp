#include "schedule/legend.h"

#include <QRegularExpression>
#include <algorithm>

#include "schedule/headwords.h"
#include "schedule/textline.h"

namespace tamo {
namespace {

constexpr double kFarthest = 14;      // of the size: from a code to what it means
constexpr qsizetype kShortest = 4;    // letters of a meaning
constexpr size_t kMostWords = 20000;  // of a sheet that is looked through

// The column with the codes: the one whose head says so, else the first.
size_t CodeColumn(const ScheduleTable& table) {
  for (size_t i = 0; i < table.columns.size(); ++i) {
    if ((MeaningOfText(table.columns[i].head) & kCodeWord) != 0) return i;
  }
  return 0;
}

void TakeRows(const ScheduleTable& table, Legend& legend) {
  const size_t code = CodeColumn(table);
  for (const ScheduleRow& row : table.rows) {
    if (code >= row.cells.size() || row.cells[code].text.isEmpty()) continue;
    QStringList told;
    for (size_t i = 0; i < row.cells.size(); ++i) {
      if (i != code && !row.cells[i].text.isEmpty()) told.append(row.cells[i].text);
    }
    if (!told.isEmpty()) {
      legend.emplace(row.cells[code].text.toUpper(), told.join(QStringLiteral(", ")));
    }
  }
}

// The code that a phrase begins with, followed by nothing or by what stands between a code and its
// meaning; `rest` is what follows in the phrase.
QString CodeOf(const QString& text, const QStringList& codes, QString& rest) {
  static const QRegularExpression between(QStringLiteral("^\\s*[-:=\\x{2013}\\x{2014}]?\\s+"));
  for (const QString& code : codes) {
    if (!text.startsWith(code, Qt::CaseInsensitive)) continue;
    rest = text.mid(code.size());
    if (rest.isEmpty()) return code;
    const QRegularExpressionMatch match = between.match(rest);
    if (!match.hasMatch() && !rest.startsWith(u':') && !rest.startsWith(u'=')) continue;
    rest = rest.mid(std::max(qsizetype(1), match.capturedLength())).trimmed();
    return code;
  }
  return {};
}

bool InSchedule(const Phrase& phrase, const std::vector<ScheduleTable>& schedule) {
  return std::any_of(schedule.begin(), schedule.end(), [&phrase](const ScheduleTable& table) {
    return Holds(table.box, phrase.MidX(), phrase.MidY());
  });
}

void TakeTextLine(const TextLine& line, const QStringList& codes,
                  const std::vector<ScheduleTable>& schedule, Legend& legend) {
  for (size_t i = 0; i < line.phrases.size(); ++i) {
    const Phrase& phrase = line.phrases[i];
    QString told;
    const QString code = CodeOf(phrase.text, codes, told);
    if (code.isEmpty() || InSchedule(phrase, schedule)) continue;
    if (told.isEmpty() && i + 1 < line.phrases.size()) {
      const Phrase& next = line.phrases[i + 1];
      if (next.box.left - phrase.box.right < kFarthest * phrase.size) told = next.text;
    }
    const bool words = std::any_of(told.begin(), told.end(), [](QChar c) { return c.isLetter(); });
    if (told.size() >= kShortest && words) legend.emplace(code.toUpper(), told);
  }
}

}  // namespace

Legend LegendBeside(const PageContent& page, const QStringList& codes,
                    const std::vector<ScheduleTable>& schedule) {
  Legend legend;
  SheetDrawing drawing = DrawingOf(page);
  if (drawing.words.size() > kMostWords) return legend;
  drawing.rules.clear();  // a code and its meaning are read across the rules between them
  for (const TextLine& line : LinesOf(drawing)) TakeTextLine(line, codes, schedule, legend);
  return legend;
}

Legend LegendOf(const std::vector<ScheduleTable>& tables) {
  Legend legend;
  for (const ScheduleTable& table : tables) {
    if (table.kind == TableKind::Legend) TakeRows(table, legend);
  }
  return legend;
}

}  // namespace tamo
