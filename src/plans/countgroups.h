#pragma once

#include <QString>
#include <vector>

#include "plans/mark.h"

// Counting circles in named groups: each circle has its number in its group, and the group's total
// stands on every sheet that has some of it. A number stays with its circle; one that was taken
// away leaves its number to the next.
namespace tamo {

struct CountGroup {
  QString name;
  QString colour;  // RRRGGGBBB, that of its newest circle
  int total = 0;   // circles of all pages
  int onPage = 0;
};

inline constexpr int kLongestGroup = 40;       // letters of a name
inline constexpr int kHighestNumber = 999999;  // of a circle

// A name as a group may have it: one line, not over kLongestGroup letters; "" when nothing is left.
QString GroupNameOf(const QString& text);
// What a circle says: its group and its number, "Lights 12".
QString GroupLabel(const QString& group, int number);
int NumberInGroup(const Mark& mark);  // 0 when its label tells none

// In the order of their first circles; `page` is the one whose circles are counted apart.
std::vector<CountGroup> GroupsOf(const std::vector<Mark>& marks, int page);
int CountInGroup(const std::vector<Mark>& marks, const QString& group);
// The `count` lowest numbers that no circle of the group has.
std::vector<int> FreeNumbers(const std::vector<Mark>& marks, const QString& group, size_t count);
// Marks that come from a file: a circle whose number is missing, not possible or another's gets a
// free one; one of a group without a name becomes a plain circle.
void SettleGroups(std::vector<Mark>& marks);

// The totals as they stand on the sheets: a label beside the first circle of each group on a page,
// "Lights: 5 of 12" where other pages have the rest. Their names tell page and group.
std::vector<Mark> GroupTotalsOf(const std::vector<Mark>& marks, double markerSize);
// A total that stands in a file is still right.
bool SameTotal(const Mark& one, const Mark& other);

}  // namespace tamo
