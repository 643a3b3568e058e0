#include "reports/systemshelf.h"

#include <utility>

#include "common/failure.h"
#include "common/numbers.h"
#include "records/linecolumns.h"
#include "reports/reportmemory.h"

namespace tamo {

std::shared_ptr<const PricedSystem> SystemShelf::ReadSystem(const QString& name) {
  SystemAhead system;
  if (ahead_.Take(name, system)) {
    source_.files.Expect(system.path);
  } else if (ReadSystemText(source_, name, system.text) != kNoError) {
    return std::make_shared<const PricedSystem>();
  }
  if (source_.memory != nullptr)
    return source_.memory->System(name, system.text, std::move(system.system));
  if (system.system != nullptr) return std::move(system.system);
  return std::make_shared<const PricedSystem>(PricedSystemOf(system.text));
}

SystemShelf::Entry SystemShelf::Read(const QString& name) {
  Entry entry{ReadSystem(name)};
  entry.unitPrice = Value(entry.system->file.unitPrice);
  for (const PricedBlock& block : entry.system->blocks)
    entry.readsZero = entry.readsZero || block.ReadsZero();
  return entry;
}

void SystemShelf::Load(QStringView name) {
  MakeAtHand(NumberOf(name));
}

void SystemShelf::LoadOfLine(QStringView line) {
  int number = lines_.Find(line);
  if (number < 0) {
    number = NumberOf(SystemOfLine(line));
    lines_.Keep(line, number);
  }
  MakeAtHand(number);
}

int SystemShelf::NumberOf(QStringView name) {
  const int known = index_.Find(name);
  if (known >= 0) return known;
  entries_.push_back(std::make_unique<Entry>(Read(name.toString())));
  return index_.Add(name);
}

void SystemShelf::MakeAtHand(int number) {
  if (number == number_) return;
  number_ = number;
  const Entry& entry = *entries_[static_cast<size_t>(number)];
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
