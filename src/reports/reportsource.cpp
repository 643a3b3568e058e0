#include "reports/reportsource.h"

#include "common/failure.h"
#include "records/adjustmentfile.h"
#include "records/itemsfile.h"

namespace tamo {
namespace {

bool NotRead(const ReportSource& source, const char* what, const QString& path, int error) {
  if (error == kNoError || IsMissing(error)) return false;
  if (source.uncounted != nullptr) source.uncounted->File(QString::fromLatin1(what), path, error);
  return true;
}

}  // namespace

QStringList CountedItems(const ReportSource& source) {
  QStringList items;
  const int error = ReadItemLines(source.files, source.project, items);
  if (NotRead(source, "the bottom line items", source.project.Items(), error)) items.clear();
  return items;
}

void ReadCountedAdjustment(const ReportSource& source, QString& adjustment) {
  const int error = ReadAdjustment(source.files, source.project, adjustment);
  if (NotRead(source, "the price adjustment", source.project.Adjustment(), error))
    adjustment.clear();
}

}  // namespace tamo
