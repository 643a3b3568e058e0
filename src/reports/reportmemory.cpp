#include "reports/reportmemory.h"

#include <utility>

#include "records/arealine.h"
#include "records/roomline.h"

namespace tamo {

void ReportMemory::BeginReport() {
  if (names_.Count() >= kMostSystems || systems_.size() >= kMostSystems) *this = {};
}

int ReportMemory::NumberOf(QStringView system) {
  const int known = names_.Find(system);
  return known >= 0 ? known : names_.Add(system);
}

MergeSheet ReportMemory::Read(const TakeoffSheet& sheet) {
  const ColumnRange quantity =
      sheet.kind == SheetKind::Room ? kRoomQuantityMerged : kAreaQuantityMerged;
  MergeSheet read;
  LineScanner lines = LinesOf(sheet);
  QStringView line;
  while (lines.Next(line)) {
    const QStringView figure = ColumnsOf(line, quantity);
    if (LacksQuantity(line, figure)) ++read.unread;
    read.lines.push_back({line.utf16() - QStringView(sheet.text).utf16(), line.size(),
                          NumberOf(SystemOfLine(line)), Value(figure)});
  }
  return read;
}

const MergeSheet& ReportMemory::Lines(const TakeoffSheet& sheet) {
  if (sheet.number >= sheets_.size()) sheets_.resize(sheet.number + 1);
  Sheet& kept = sheets_[sheet.number];
  if (kept.kind == sheet.kind && !kept.text.isNull() && kept.text == sheet.text) return kept.lines;
  characters_ -= kept.text.size();
  kept = {};
  if (characters_ + sheet.text.size() > kMost) {
    last_ = Read(sheet);
    return last_;
  }
  kept = {sheet.kind, sheet.text, Read(sheet)};
  characters_ += sheet.text.size();
  return kept.lines;
}

std::shared_ptr<const PricedSystem> ReportMemory::System(
    const QString& name, const QString& text, std::shared_ptr<const PricedSystem> ready) {
  const auto kept = systems_.constFind(name);
  if (kept != systems_.constEnd() && kept->text == text) return kept->system;
  if (ready == nullptr) ready = std::make_shared<const PricedSystem>(PricedSystemOf(text));
  systems_.insert(name, {text, ready});
  return ready;
}

}  // namespace tamo
