#include "reports/pricedsystem.h"

#include <utility>

#include "common/failure.h"
#include "common/numbers.h"
#include "common/paths.h"
#include "records/materialblock.h"

namespace tamo {
namespace {

OrderTag OrderTagOf(const QString& text) {
  if (text == QLatin1String(kUpo)) return OrderTag::Upo;
  if (text == QLatin1String(kOpu)) return OrderTag::Opu;
  return OrderTag::None;
}

LaborTag LaborTagOf(const QString& text) {
  if (text == QLatin1String(kUpm)) return LaborTag::Upm;
  if (text == QLatin1String(kMpu)) return LaborTag::Mpu;
  return LaborTag::None;
}

}  // namespace

std::vector<PricedBlock> PricedBlocks(const QStringList& lines) {
  std::vector<PricedBlock> blocks;
  for (qsizetype at = 0; at < lines.size(); at += kBlockRows) {
    const MaterialBlock texts = MaterialBlock::At(lines, at);
    PricedBlock block;
    block.material = texts.material;
    block.orderUnit = texts.orderUnits;
    block.price = Value(texts.price);
    block.ratio = Value(texts.upo);
    block.orderTag = OrderTagOf(texts.upoTag);
    block.manhourRatio = Value(texts.mnhrPO);
    block.laborTag = LaborTagOf(texts.mnhrTag);
    block.waste = Value(texts.waste);
    block.wage = Value(texts.wageRate);
    blocks.push_back(block);
  }
  return blocks;
}

int LoadSystem(const ReportSource& source, const QString& name, PricedSystem& system) {
  system = PricedSystem();
  if (!NameRefusal(name).isEmpty()) return kFileNotFound;
  const int error = ReadSystemFile(source.files, source.project.SystemFile(name), system.file);
  if (error != kNoError) {
    if (!IsMissing(error) && source.uncounted != nullptr)
      source.uncounted->File(QStringLiteral("the price of \"%1\"").arg(name),
                             source.project.SystemFile(name), error);
    system.file = {};
    return error;
  }
  system.found = true;
  system.blocks = PricedBlocks(std::exchange(system.file.blocks, {}));
  return kNoError;
}

void SystemShelf::Load(QStringView name) {
  int at = index_.Find(name);
  if (at < 0) {
    at = index_.Add(name);
    auto entry = std::make_unique<Entry>();
    LoadSystem(source_, index_.At(at), entry->system);
    entry->unitPrice = Value(entry->system.file.unitPrice);
    for (const PricedBlock& block : entry->system.blocks)
      entry->readsZero = entry->readsZero || block.ReadsZero();
    entries_.push_back(std::move(entry));
  }
  if (at == number_) return;
  number_ = at;
  const Entry& entry = *entries_[static_cast<size_t>(at)];
  found_ = entry.system.found;
  readsZero_ = entry.readsZero;
  blocks_ = &entry.system.blocks;
  if (!found_) return;
  const SystemFile& file = entry.system.file;
  if (file.reached > 0) name_ = &file.description;
  if (file.reached > 1) units_ = &file.units;
  if (file.reached > 2) {
    unitPriceText_ = &file.unitPrice;
    unitPrice_ = entry.unitPrice;
  }
  notes_ = &file.notes;
}

}  // namespace tamo
