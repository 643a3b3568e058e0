#pragma once

#include <QByteArray>

#include "common/tablesink.h"

namespace tamo {

// A table that becomes a file of some format.
class TableFile : public TableSink {
 public:
  // Behind the last row: what whoever reads the table must know of it, such as what was not
  // counted. Each stands in the first column of a row of its own.
  virtual void Remark(const QString& text) = 0;
  // Last of all. An error number as Disk has them.
  virtual int Finish() = 0;
};

// A number as other programs read it everywhere: a point for the decimals, a digit before it, at
// most 15 digits, no thousands comma.
QByteArray PlainNumber(double number);

}  // namespace tamo
