#pragma once

#include <QStringList>
#include <vector>

#include "schedule/scheduletable.h"

namespace tamo {

// The texts over one column, from the top down; the last is its own head.
using HeadTexts = QStringList;

struct HeadRole {
  ColumnRole role = ColumnRole::Other;
  bool guessed = false;
  bool known = false;  // its words are usual ones
};

// The roles of all columns of a table together: N E S W mean sides only in company.
std::vector<HeadRole> RolesOf(const std::vector<HeadTexts>& heads);

// What kind of table has such heads under such a title; `confidence` from 0 to 1.
TableKind KindOf(const std::vector<HeadTexts>& heads, const QString& title, double& confidence);

}  // namespace tamo
