// Whatever bytes a system's file holds, in the library or picked for an import: reading it ends,
// what is written again is read the same, no import leaves the folder, and no figure is an
// infinity.

#include <cstdint>
#include <cstdlib>

#include "common/failure.h"
#include "common/paths.h"
#include "common/textlines.h"
#include "pricing/exchange.h"
#include "pricing/palette.h"
#include "pricing/unitprice.h"
#include "records/materialblock.h"
#include "records/systemfile.h"

namespace {

void Must(bool holds) {
  if (!holds) std::abort();
}

void CheckPrice(const tamo::SystemFile& system) {
  try {
    const auto price = tamo::EstimateUnitPrice(system.blocks, {});
    Must(!price.text.contains(QLatin1String("inf")) && !price.text.contains(QLatin1String("nan")));
    tamo::PriceFormat::MakeMoney(system.unitPrice);
  } catch (const tamo::RunTimeFailure& failure) {
    Must(failure.number == tamo::kOverflow);
  }
}

void CheckStored(const tamo::SystemFile& system) {
  using namespace tamo;
  const SystemFile again = ReadSystemFile(SystemFileText(system));
  Must(again.description == system.description && again.units == system.units);
  Must(again.unitPrice == system.unitPrice && again.lineColor == system.lineColor);
  Must(again.blocks == StoredBlocks(system.blocks));
  Must(again.blocks.size() % kBlockRows == 0);
  const SystemFile third = ReadSystemFile(SystemFileText(again));
  Must(third.blocks == again.blocks && third.notes == again.notes + QLatin1String("\r\n"));
}

void CheckImport(const QString& text) {
  using namespace tamo;
  const ImportedSystem imported = CheckedExport(text, QStringLiteral("it.sys"));
  if (!imported.refusal.isEmpty()) return;
  Must(NameRefusal(imported.system.description).isEmpty());
  Must(imported.system.blocks.size() % kBlockRows == 0);
  for (const QString& name : MaterialNames(imported.system.blocks))
    Must(NameRefusal(name).isEmpty());
  const auto again = CheckedExport(ExportedText(imported.system), QStringLiteral("it.sys"));
  Must(again.refusal.isEmpty());
  Must(again.system.blocks == StoredBlocks(imported.system.blocks));
  PrintedSystem(imported.system);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tamo;
  const QString text =
      DecodedText(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
  const SystemFile system = ReadSystemFile(text);
  const QString colour = ShownColour(system.lineColor);
  Must(colour.isEmpty() || colour.size() == 9);
  CheckPrice(system);
  CheckStored(system);
  CheckImport(text);
  return 0;
}
