#pragma once

#include <QDate>
#include <QString>

#include "common/files.h"
#include "records/datafolder.h"

namespace tamo {

// A project id is the estimator's two digits, "-", year and month in two digits each, and a running
// number of at least three digits within the month: 00-2112002.

// The line that a new data folder's Project.num begins with: yymm000.
QString SeedNumber(const QDate& today);

struct NextNumber {
  QString number;         // yymmnnn, without the estimator
  bool newMonth = false;  // the month changed: the number is written to Project.num at once
};

// The number after `line`, the last number given out (with or without an estimator before it).
// Numbers never go back: with the clock moved back the count goes on.
NextNumber NumberAfter(const QString& line, const QDate& today);

// The number behind the last "-" of an id, or alone.
struct ProjectNumber {
  QString month;  // yymm; "" when the text ends in no number of a project: lower than all others
  quint64 running = 0;

  bool operator<(const ProjectNumber& other) const {
    return month == other.month ? running < other.running : month < other.month;
  }
};
ProjectNumber NumberInId(const QString& id);
QString DigitsOf(const ProjectNumber& number);  // yymmnnn

// The last number given out, as it stands in the data folder. Error numbers as Files has them;
// `line` keeps its text when there is nothing to read.
int ReadProjectNumber(Files& files, const DataFolder& data, QString& line);
int WriteProjectNumber(Files& files, const DataFolder& data, const QString& line);

}  // namespace tamo
