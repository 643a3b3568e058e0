#include "reports/pricedsystem.h"

#include <array>
#include <utility>

#include "common/failure.h"
#include "common/numbers.h"
#include "common/paths.h"
#include "records/materialblock.h"
#include "reports/reportmemory.h"

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

namespace {

// The text of the file. That it was read here is remembered: when it is missing later, it is gone.
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

}  // namespace

int LoadSystem(const ReportSource& source, const QString& name, PricedSystem& system) {
  QString text;
  const int error = ReadSystemText(source, name, text);
  system = error == kNoError ? PricedSystemOf(text) : PricedSystem();
  return error;
}

SystemShelf::Entry SystemShelf::Read(const QString& name) const {
  Entry entry;
  QString text;
  if (ReadSystemText(source_, name, text) != kNoError) {
    entry.system = std::make_shared<PricedSystem>();
  } else if (source_.memory != nullptr) {
    entry.system = source_.memory->System(name, text);
  } else {
    entry.system = std::make_shared<PricedSystem>(PricedSystemOf(text));
  }
  entry.unitPrice = Value(entry.system->file.unitPrice);
  for (const PricedBlock& block : entry.system->blocks)
    entry.readsZero = entry.readsZero || block.ReadsZero();
  return entry;
}

void SystemShelf::Load(QStringView name) {
  int at = index_.Find(name);
  if (at < 0) {
    Entry entry = Read(name.toString());
    at = index_.Add(name);
    entries_.push_back(std::make_unique<Entry>(std::move(entry)));
  }
  if (at == number_) return;
  number_ = at;
  const Entry& entry = *entries_[static_cast<size_t>(at)];
  found_ = entry.system->found;
  readsZero_ = entry.readsZero;
  blocks_ = &entry.system->blocks;
  if (!found_) return;
  const SystemFile& file = entry.system->file;
  if (file.reached > 0) name_ = &file.description;
  if (file.reached > 1) units_ = &file.units;
  if (file.reached > 2) {
    unitPriceText_ = &file.unitPrice;
    unitPrice_ = entry.unitPrice;
  }
  notes_ = &file.notes;
}

}  // namespace tamo
