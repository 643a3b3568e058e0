// The readers of the workspace: the project record, the number line, plan names. Whatever a file
// holds, they end, and a record that was read is written and read again without a change.
#include <cstdint>

#include "common/paths.h"
#include "common/textlines.h"
#include "records/markedplan.h"
#include "records/projectnumber.h"
#include "records/projectrecord.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const QString text = tamo::DecodedText(
      QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
  const QStringList lines = tamo::WholeLines(text);
  tamo::JobNFO record;
  tamo::ReadJobNFO(lines, record);
  tamo::JobNFO again;
  tamo::ReadJobNFO(tamo::WholeLines(tamo::JobNFOText(record)), again);
  if (again.notes != record.notes || again.planLocation != record.planLocation ||
      again.text5 != record.text5)
    __builtin_trap();
  tamo::NumberAfter(lines.value(0), QDate(2021, 12, 14));
  tamo::MarkedPlanPath(lines.value(0),
                       tamo::ProjectFolder(QStringLiteral("/p/"), QStringLiteral("/")));
  tamo::NameRefusal(lines.value(0));
  return 0;
}
