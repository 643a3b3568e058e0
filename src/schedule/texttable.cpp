#include "schedule/texttable.h"

#include <algorithm>

#include "schedule/headroles.h"
#include "schedule/headwords.h"

namespace tamo {
namespace {

constexpr qsizetype kMostColumns = 100;
constexpr size_t kMostRows = 5000;

// Cuts a text into lines of cells.
class Cutter {
 public:
  Cutter(const QString& text, QChar separator) : text_(text), separator_(separator) {}

  std::vector<QStringList> Lines() {
    for (at_ = 0; at_ < text_.size(); ++at_) Take(text_[at_]);
    EndLine();
    return std::move(lines_);
  }

 private:
  void Take(QChar letter) {
    if (quoted_) return TakeQuoted(letter);
    if (letter == u'"' && cell_.trimmed().isEmpty()) {
      quoted_ = QuoteEnds();
      if (quoted_) return cell_.clear();
    }
    if (letter == separator_) return EndCell();
    if (letter == u'\n') return EndLine();
    if (letter != u'\r') cell_ += letter;
  }
  void TakeQuoted(QChar letter) {
    if (letter != u'"') {
      cell_ += letter;
      return;
    }
    if (at_ + 1 < text_.size() && text_[at_ + 1] == u'"') {
      cell_ += letter;
      ++at_;
      return;
    }
    quoted_ = false;
  }
  bool EndsCell(qsizetype at) const {
    return at >= text_.size() || text_[at] == separator_ || text_[at] == u'\r' ||
           text_[at] == u'\n';
  }
  // A mark that stands alone in its cell is a ditto mark; one that opens a cell closes before a
  // separator or a line end.
  bool QuoteEnds() const {
    if (EndsCell(at_ + 1)) return false;
    for (qsizetype i = at_ + 1; i < text_.size(); ++i) {
      if (text_[i] != u'"') continue;
      if (i + 1 == text_.size() || text_[i + 1] != u'"') return EndsCell(i + 1);
      ++i;
    }
    return false;
  }
  void EndCell() {
    line_.append(cell_.simplified());
    cell_.clear();
  }
  void EndLine() {
    EndCell();
    if (!line_.join(QString()).isEmpty()) lines_.push_back(line_);
    line_.clear();
  }

  const QString& text_;
  const QChar separator_;
  qsizetype at_ = 0;
  bool quoted_ = false;
  QString cell_;
  QStringList line_;
  std::vector<QStringList> lines_;
};

QChar SeparatorOf(const QString& text) {
  if (text.contains(u'\t')) return u'\t';
  const QString first = text.section(u'\n', 0, 0);
  return first.count(u';') > first.count(u',') ? u';' : u',';
}

// A name goes on over the blank cells to its right.
std::vector<HeadTexts> HeadsOf(const std::vector<QStringList>& lines, size_t depth,
                               qsizetype columns) {
  std::vector<HeadTexts> heads(static_cast<size_t>(columns));
  for (size_t line = 0; line < depth; ++line) {
    QString over;
    for (qsizetype i = 0; i < columns; ++i) {
      const QString own = lines[line].value(i);
      if (!own.isEmpty()) over = own;
      const QString& text = line + 1 < depth ? over : own;
      if (!text.isEmpty()) heads[size_t(i)].append(text);
    }
  }
  return heads;
}

qsizetype Filled(const QStringList& line) {
  return std::count_if(line.begin(), line.end(),
                       [](const QString& cell) { return !cell.isEmpty(); });
}

// A title over the table has one cell alone.
size_t FirstHead(const std::vector<QStringList>& lines) {
  size_t first = 0;
  while (first < lines.size() && Filled(lines[first]) < 2) ++first;
  return first;
}

// A further line of heads: every cell with text names a column.
bool IsHeadLine(const QStringList& line) {
  return Filled(line) > 1 && std::all_of(line.begin(), line.end(), [](const QString& cell) {
           return cell.isEmpty() || MeaningOfText(cell) != kNoMeaning;
         });
}

bool AreFinishHeads(const std::vector<HeadTexts>& heads) {
  double confidence = 0;
  return KindOf(heads, {}, confidence) == TableKind::Finish;
}

ScheduleTable TableOf(const std::vector<QStringList>& lines, size_t depth,
                      const std::vector<HeadTexts>& heads) {
  ScheduleTable table;
  table.kind = TableKind::Finish;
  table.confidence = 1;
  const std::vector<HeadRole> roles = RolesOf(heads);
  for (size_t i = 0; i < heads.size(); ++i) {
    table.columns.push_back({heads[i].join(u' '), roles[i].role, roles[i].guessed, 0, 0});
  }
  for (size_t line = depth; line < lines.size(); ++line) {
    if (Filled(lines[line]) == 1 && LooksLikeGroup(lines[line].join(QString()))) {
      table.groups.push_back({int(table.rows.size()), lines[line].join(QString())});
      continue;
    }
    ScheduleRow row;
    for (size_t i = 0; i < heads.size(); ++i) {
      row.cells.push_back({lines[line].value(qsizetype(i)), {}, {}});
    }
    table.rows.push_back(std::move(row));
  }
  return table;
}

}  // namespace

std::vector<QStringList> CellsOfText(const QString& text) {
  return Cutter(text, SeparatorOf(text)).Lines();
}

ScheduleReading ReadTextSchedule(const QString& text) {
  std::vector<QStringList> lines = CellsOfText(text);
  qsizetype columns = 0;
  for (const QStringList& line : lines) columns = std::max(columns, line.size());
  if (columns > kMostColumns || lines.size() > kMostRows) {
    return {QStringLiteral("The table is too large for a finish schedule (more than %1 columns or "
                           "%2 rows). Copy the schedule alone.")
                .arg(kMostColumns)
                .arg(kMostRows),
            {}};
  }
  const size_t first = FirstHead(lines);
  lines.erase(lines.begin(), lines.begin() + ptrdiff_t(first));
  size_t depth = lines.empty() ? 0 : 1;
  while (depth > 0 && depth < 3 && depth < lines.size() && IsHeadLine(lines[depth])) ++depth;
  const std::vector<HeadTexts> heads = HeadsOf(lines, depth, columns);
  if (depth < lines.size() && AreFinishHeads(heads)) return {{}, {TableOf(lines, depth, heads)}};
  return {QStringLiteral("The text is no finish schedule: its first line has to name the columns "
                         "(Number, Name, Floor, Base, Walls, Ceiling ...), separated by tabs or "
                         "commas, and the rooms stand below it."),
          {}};
}

}  // namespace tamo
