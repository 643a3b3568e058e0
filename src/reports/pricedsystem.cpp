#include "reports/pricedsystem.h"

#include <array>
#include <utility>

#include "common/failure.h"
#include "common/numbers.h"
#include "common/paths.h"
#include "records/materialblock.h"

namespace tamo {
namespace {

OrderTag OrderTagOf(QStringView text) {
  if (text == QLatin1String(kUpo)) return OrderTag::Upo;
  if (text == QLatin1String(kOpu)) return OrderTag::Opu;
  return OrderTag::None;
}

LaborTag LaborTagOf(QStringView text) {
  if (text == QLatin1String(kUpm)) return LaborTag::Upm;
  if (text == QLatin1String(kMpu)) return LaborTag::Mpu;
  return LaborTag::None;
}

}  // namespace

std::vector<PricedBlock> PricedBlocks(LineScanner rows) {
  std::vector<PricedBlock> blocks;
  for (;;) {
    std::array<QStringView, kBlockRows> texts;
    size_t count = 0;
    while (count < texts.size() && rows.Next(texts[count])) ++count;
    if (count == 0) return blocks;
    for (; count < texts.size(); ++count) texts[count] = {};
    PricedBlock& block = blocks.emplace_back();
    block.material = texts[0].toString();
    block.orderUnit = texts[1].toString();
    block.price = Value(texts[2]);
    block.ratio = Value(texts[3]);
    block.orderTag = OrderTagOf(texts[4]);
    block.manhourRatio = Value(texts[5]);
    block.laborTag = LaborTagOf(texts[6]);
    block.waste = Value(texts[7]);
    block.wage = Value(texts[8]);
  }
}

PricedSystem PricedSystemOf(const QString& text) {
  PricedSystem system;
  LineScanner rows;
  system.file = ScanSystemFile(text, rows);
  system.blocks = PricedBlocks(rows);
  system.found = true;
  return system;
}

int ReadSystemText(const ReportSource& source, const QString& name, QString& text) {
  if (!NameRefusal(name).isEmpty()) return kFileNotFound;
  const QString path = source.project.SystemFile(name);
  const int error = source.files.ReadForReport(path, text);
  if (error == kNoError) {
    source.files.Expect(path);
  } else if (!IsMissing(error) && source.uncounted != nullptr) {
    source.uncounted->File(QStringLiteral("the price of \"%1\"").arg(name), path, error);
  }
  return error;
}

int LoadSystem(const ReportSource& source, const QString& name, PricedSystem& system) {
  QString text;
  const int error = ReadSystemText(source, name, text);
  system = error == kNoError ? PricedSystemOf(text) : PricedSystem();
  return error;
}

}  // namespace tamo
