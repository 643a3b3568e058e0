#include "plans/markaccount.h"

#include <QHash>
#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

#include "common/numbers.h"
#include "plans/carriedmarks.h"
#include "plans/marklegend.h"

namespace tamo {
namespace {

// The marks of one entry into a line.
struct Entry {
  double before = 0;
  double after = 0;
  int number = 0;  // of its mark that was drawn last
  std::vector<size_t> marks;
};

struct Line {
  TakeoffPlace place;
  std::vector<Entry> entries;
  QHash<QString, size_t> known;  // by text and quantities
};

bool Less(double a, double b) {
  return a < b - 1e-6 * std::max(1.0, std::abs(b));
}

void AddTo(Line& line, const MarkTie& tie, int number, size_t mark) {
  constexpr int kDigits = 15;
  const QString key = tie.entry + QLatin1Char('|') + QString::number(tie.before, 'g', kDigits) +
                      QLatin1Char('|') + QString::number(tie.after, 'g', kDigits);
  const auto known = line.known.constFind(key);
  const size_t at = known == line.known.constEnd() ? line.entries.size() : *known;
  if (at == line.entries.size()) {
    line.known.insert(key, at);
    line.entries.push_back({tie.before, tie.after, 0, {}});
  }
  line.entries[at].number = std::max(line.entries[at].number, number);
  line.entries[at].marks.push_back(mark);
}

// From one entry to the next a line only grows, by what was typed in between. Where it has become
// less, an entry before that was corrected, and nobody knows which.
void FlagCorrected(Line& line, double now, std::vector<AccountedMark>& account) {
  std::sort(line.entries.begin(), line.entries.end(),
            [](const Entry& a, const Entry& b) { return a.number < b.number; });
  QString flag;
  double next = now;
  for (auto entry = line.entries.rbegin(); entry != line.entries.rend(); ++entry) {
    if (Less(next, entry->after))
      flag = QStringLiteral("The line went down since, from %1 to %2")
                 .arg(NumberText(entry->after), NumberText(next));
    next = entry->before;
    for (const size_t mark : entry->marks) account[mark].flag = flag;
  }
}

QString FlagOfMark(const Mark& mark, const MarkTie& tie, const TakeoffLines& lines) {
  if (!lines.OfOpenProject(tie.place))
    return QStringLiteral("Entered in another project: ") + tie.place.project;
  const QString says = SaidBy(mark);
  if (says != tie.said)
    return QStringLiteral("Changed since: entered as %1, says %2").arg(tie.said, says);
  return {};
}

// The totals of a page, worked out once for all of its legends.
class PageTotals {
 public:
  explicit PageTotals(const std::vector<Mark>& marks) : marks_(marks) {}

  const std::vector<MarkTotal>& Of(int page) {
    const auto known = pages_.find(page);
    return known != pages_.end() ? known->second
                                 : pages_.emplace(page, TotalsOf(marks_, page)).first->second;
  }

 private:
  const std::vector<Mark>& marks_;
  std::map<int, std::vector<MarkTotal>> pages_;
};

QString FlagOfLegend(const Mark& mark, PageTotals& totals) {
  Mark now = mark;
  PutLegend(now, LegendOf(totals.Of(mark.page), LegendOfMark(mark).ofPlan, mark.page));
  return now.label == mark.label ? QString()
                                 : QStringLiteral("Out of date: bring it up to date in the menu");
}

QString KeyOf(const TakeoffPlace& place) {
  return (place.area ? QLatin1Char('a') : QLatin1Char('r')) + place.sheet + QLatin1Char('\n') +
         place.system;
}

}  // namespace

QString SaidBy(const Mark& mark) {
  return IsCount(mark.kind) ? QStringLiteral("1") : mark.label.section(QLatin1Char(' '), 0, 0);
}

std::vector<AccountedMark> AccountOf(const std::vector<Mark>& marks, TakeoffLines& lines) {
  std::vector<AccountedMark> account(marks.size());
  QHash<QString, Line> found;
  PageTotals totals(marks);
  for (size_t i = 0; i < marks.size(); ++i) {
    if (marks[i].kind == Mark::Kind::Legend) {
      account[i].flag = FlagOfLegend(marks[i], totals);
      continue;
    }
    if (marks[i].kept.isEmpty()) continue;
    account[i].tie = TieOfText(marks[i].kept);
    if (!account[i].tie) {
      account[i].flag = QStringLiteral("What it was entered into can't be read");
      continue;
    }
    const MarkTie& tie = *account[i].tie;
    if (!lines.OfOpenProject(tie.place)) continue;
    Line& line = found[KeyOf(tie.place)];
    line.place = tie.place;
    AddTo(line, tie, MarkNumber(marks[i].name), i);
  }
  for (Line& line : found) {
    if (const std::optional<double> now = lines.Quantity(line.place)) {
      FlagCorrected(line, *now, account);
      continue;
    }
    for (const Entry& entry : line.entries) {
      for (const size_t mark : entry.marks)
        account[mark].flag = QStringLiteral("The line is not there any more");
    }
  }
  // What is wrong with the mark itself says more than what is wrong with its line.
  for (size_t i = 0; i < marks.size(); ++i) {
    if (SaysDrawingChanged(marks[i]))
      account[i].flag = QStringLiteral("Carried over, and the drawing changed here");
    if (!account[i].tie) continue;
    const QString flag = FlagOfMark(marks[i], *account[i].tie, lines);
    if (!flag.isEmpty()) account[i].flag = flag;
  }
  return account;
}

}  // namespace tamo
