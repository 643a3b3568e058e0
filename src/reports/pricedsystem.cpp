#include "reports/pricedsystem.h"

#include "common/columns.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "common/paths.h"
#include "common/textlines.h"

namespace tamo {
namespace {

constexpr qsizetype kBlockLines = 12;

OrderTag OrderTagOf(const QString& text) {
  if (text == QLatin1String("upo")) return OrderTag::Upo;
  if (text == QLatin1String("opu")) return OrderTag::Opu;
  return OrderTag::None;
}

LaborTag LaborTagOf(const QString& text) {
  if (text == QLatin1String("upm")) return LaborTag::Upm;
  if (text == QLatin1String("mpu")) return LaborTag::Mpu;
  return LaborTag::None;
}

}  // namespace

std::vector<PricedBlock> PricedBlocks(const QStringList& lines) {
  std::vector<PricedBlock> blocks;
  for (qsizetype at = 0; at < lines.size(); at += kBlockLines) {
    const auto line = [&](qsizetype offset) { return lines.value(at + offset); };
    PricedBlock block;
    block.material = line(0);
    block.orderUnit = line(1);
    block.price = Value(line(2));
    block.ratio = Value(line(3));
    block.orderTag = OrderTagOf(line(4));
    block.manhourRatio = Value(line(5));
    block.laborTag = LaborTagOf(line(6));
    block.waste = Value(line(7));
    block.wage = Value(line(8));
    blocks.push_back(block);
  }
  return blocks;
}

int LoadSystem(const ReportSource& source, const QString& name, PricedSystem& system) {
  system = PricedSystem();
  if (!NameRefusal(name).isEmpty()) return kFileNotFound;
  QStringList lines;
  const int error = source.files.ReadLines(
      source.folder + QStringLiteral("Systems") + source.separator + name + QStringLiteral(".sys"),
      lines);
  if (error != kNoError) return error;
  system.found = true;
  LineReader reader(lines);
  for (QString* scalar : {&system.name, &system.units, &system.unitPrice, &system.lineColor}) {
    if (reader.Read(*scalar)) ++system.scalars;
  }
  QString line;
  while (reader.Read(line) && line != QLatin1String("\x01")) system.notes += line + "\r\n";
  reader.Skip(2);
  QStringList materials;
  while (reader.Read(line)) materials += line;
  system.blocks = PricedBlocks(materials);
  return kNoError;
}

void SystemShelf::Load(QStringView name) {
  int at = index_.Find(name);
  if (at < 0) {
    at = index_.Add(name);
    auto entry = std::make_unique<Entry>();
    LoadSystem(source_, index_.At(at), entry->system);
    entry->unitPrice = Value(entry->system.unitPrice);
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
  if (entry.system.scalars > 0) name_ = &entry.system.name;
  if (entry.system.scalars > 1) units_ = &entry.system.units;
  if (entry.system.scalars > 2) {
    unitPriceText_ = &entry.system.unitPrice;
    unitPrice_ = entry.unitPrice;
  }
  notes_ = &entry.system.notes;
}

}  // namespace tamo
