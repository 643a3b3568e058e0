#include "plans/countgroups.h"

#include <QCryptographicHash>
#include <QHash>
#include <QSet>
#include <algorithm>
#include <map>

#include "plans/markshape.h"

namespace tamo {
namespace {

constexpr double kBeside = 2;     // points between a circle and the total
constexpr double kBaseLine = 3;   // points below the circle's middle
constexpr double kLetters = 9;    // points, their height
constexpr double kSamePlace = 1;  // points that a label of a file may be off

bool InGroup(const Mark& mark) {
  return mark.kind == Mark::Kind::Grouped;
}

QSet<int> NumbersOf(const std::vector<Mark>& marks, const QString& group) {
  QSet<int> numbers;
  for (const Mark& mark : marks) {
    if (InGroup(mark) && mark.group == group) numbers.insert(NumberInGroup(mark));
  }
  return numbers;
}

// Beside the first circle of the group, where no other circle of the page lies: to its right if it
// can be, else under it, over it or to its left.
PagePoint PlaceOfTotal(const std::vector<Mark>& marks, const Mark& first, const QString& label,
                       double radius) {
  const PagePoint at = first.points.front();
  const double width = LetterWidth(label, kLetters);
  const PagePoint places[] = {{at.x + radius + kBeside, at.y + kBaseLine},
                              {at.x - radius, at.y + radius + kLetters},
                              {at.x - radius, at.y - radius - kBaseLine},
                              {at.x - radius - kBeside - width, at.y + kBaseLine}};
  for (const PagePoint place : places) {
    const bool free = std::none_of(marks.begin(), marks.end(), [&](const Mark& other) {
      if (!IsCount(other.kind) || other.page != first.page || &other == &first) return false;
      const PagePoint centre = other.points.front();
      return centre.x > place.x - radius && centre.x < place.x + width + radius &&
             centre.y > place.y - kLetters - radius && centre.y < place.y + radius;
    });
    if (free && place.x >= 0 && place.y >= kLetters) return place;
  }
  return places[0];
}

// The same for the same page and group, so that a save finds the one it wrote before.
QString TotalName(int page, const QString& group) {
  const QByteArray hash = QCryptographicHash::hash(group.toUtf8(), QCryptographicHash::Sha1);
  return QLatin1String(kMarkPrefix) + QStringLiteral("total-%1-").arg(page) +
         QString::fromLatin1(hash.left(8).toHex());
}

}  // namespace

QString GroupNameOf(const QString& text) {
  QString name = text.simplified().left(kLongestGroup).trimmed();
  name.removeIf([](QChar c) { return !c.isPrint(); });
  return name;
}

QString GroupLabel(const QString& group, int number) {
  return group + QLatin1Char(' ') + QString::number(number);
}

int NumberInGroup(const Mark& mark) {
  const QString start = mark.group + QLatin1Char(' ');
  if (!InGroup(mark) || !mark.label.startsWith(start)) return 0;
  bool good = false;
  const int number = mark.label.mid(start.size()).toInt(&good);
  return good && number > 0 && number <= kHighestNumber ? number : 0;
}

std::vector<CountGroup> GroupsOf(const std::vector<Mark>& marks, int page) {
  std::vector<CountGroup> groups;
  QHash<QString, size_t> known;
  for (const Mark& mark : marks) {
    if (!InGroup(mark)) continue;
    const auto found = known.constFind(mark.group);
    const size_t at = found == known.constEnd() ? groups.size() : *found;
    if (at == groups.size()) {
      known.insert(mark.group, at);
      groups.push_back({mark.group, mark.colour, 0, 0});
    }
    groups[at].colour = mark.colour;
    ++groups[at].total;
    if (mark.page == page) ++groups[at].onPage;
  }
  return groups;
}

int CountInGroup(const std::vector<Mark>& marks, const QString& group) {
  return static_cast<int>(std::count_if(marks.begin(), marks.end(), [&](const Mark& mark) {
    return InGroup(mark) && mark.group == group;
  }));
}

std::vector<int> FreeNumbers(const std::vector<Mark>& marks, const QString& group, size_t count) {
  const QSet<int> taken = NumbersOf(marks, group);
  std::vector<int> numbers;
  for (int number = 1; numbers.size() < count; ++number) {
    if (!taken.contains(number)) numbers.push_back(number);
  }
  return numbers;
}

void SettleGroups(std::vector<Mark>& marks) {
  QHash<QString, QSet<int>> taken;
  std::vector<Mark*> without;
  for (Mark& mark : marks) {
    if (!InGroup(mark)) continue;
    const QString name = GroupNameOf(mark.group);
    if (name.isEmpty()) {
      mark.kind = Mark::Kind::Circle;
      mark.group.clear();
      mark.label.clear();
      continue;
    }
    const int number = NumberInGroup(mark);
    mark.group = name;
    QSet<int>& numbers = taken[name];
    if (number == 0 || numbers.contains(number)) {
      without.push_back(&mark);
    } else {
      numbers.insert(number);
      mark.label = GroupLabel(name, number);
    }
  }
  QHash<QString, int> next;
  for (Mark* mark : without) {
    int& number = next[mark->group];
    const QSet<int>& numbers = taken[mark->group];
    do ++number;
    while (numbers.contains(number));
    mark->label = GroupLabel(mark->group, number);
  }
}

std::vector<Mark> GroupTotalsOf(const std::vector<Mark>& marks, double markerSize) {
  struct Part {
    int count = 0;
    const Mark* first = nullptr;
  };
  std::map<std::pair<QString, int>, Part> parts;
  QHash<QString, int> totals;
  for (const Mark& mark : marks) {
    if (!InGroup(mark) || mark.points.empty()) continue;
    Part& part = parts[{mark.group, mark.page}];
    ++part.count;
    ++totals[mark.group];
    if (part.first == nullptr || NumberInGroup(mark) < NumberInGroup(*part.first))
      part.first = &mark;
  }
  std::vector<Mark> labels;
  for (const auto& [key, part] : parts) {
    const auto& [group, page] = key;
    Mark total;
    total.kind = Mark::Kind::Total;
    total.page = page;
    total.group = group;
    total.colour = part.first->colour;
    total.name = TotalName(page, group);
    total.label = group + QStringLiteral(": ") + QString::number(part.count);
    if (part.count != totals[group]) total.label += QStringLiteral(" of %1").arg(totals[group]);
    total.points = {PlaceOfTotal(marks, *part.first, total.label, markerSize / 2)};
    labels.push_back(std::move(total));
  }
  return labels;
}

bool SameTotal(const Mark& one, const Mark& other) {
  return one.kind == other.kind && one.page == other.page && one.group == other.group &&
         one.label == other.label && one.colour == other.colour && !one.points.empty() &&
         !other.points.empty() && Distance(one.points[0], other.points[0]) <= kSamePlace;
}

}  // namespace tamo
