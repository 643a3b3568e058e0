#include "reports/bidoverview.h"

#include <QSet>

#include "common/columns.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "records/arealine.h"
#include "records/itemline.h"
#include "records/linecolumns.h"
#include "records/roomline.h"
#include "reports/bidfigures.h"
#include "reports/takeoffwalk.h"

namespace tamo {
namespace {

class Counter : public TakeoffVisitor {
 public:
  explicit Counter(BidOverview& state) : state_(state) {}

  void BeginSheet(SheetKind kind, const QString&) override {
    ++(kind == SheetKind::Room ? state_.rooms : state_.areas);
  }
  void Line(SheetKind kind, QStringView line) override {
    const QStringView system = SystemOfLine(line);
    if (system.isEmpty()) return;
    const bool room = kind == SheetKind::Room;
    ++(room ? state_.roomLines : state_.areaLines);
    if (Value(ColumnsOf(line, room ? kRoomQuantityMerged : kAreaQuantityMerged)) == 0)
      ++state_.withoutQuantity;
    if (system == last_) return;
    last_ = system.toString();
    if (seen_.contains(last_)) return;
    seen_.insert(last_);
    systems += last_;
  }

  QStringList systems;  // in the order in which they come up

 private:
  BidOverview& state_;
  QString last_;
  QSet<QString> seen_;
};

// A price that can't be read is told elsewhere.
bool IsUnpriced(const ReportSource& source, const QString& name) {
  PricedSystem system;
  const int error = LoadSystem(source, name, system);
  if (error != kNoError) return IsMissing(error);
  return (Value(system.file.unitPrice) == 0 && system.blocks.empty());
}

// The figures that need no recap, so that they stand when there is none.
void AddRest(const ReportSource& source, const QStringList& systems, BidOverview& state) {
  const QStringList items = CountedItems(source);
  state.items = static_cast<int>(items.size());
  for (const QString& item : items) state.itemPrices += ItemPrice(item);
  QString adjustment;
  ReadCountedAdjustment(source, adjustment);
  state.adjustment = Value(adjustment);
  for (const QString& system : systems) {
    TellProgress(source, 0, 1);  // nobody waits for the rest of one that is stopped
    if (IsUnpriced(source, system)) state.unpriced += system;
  }
}

}  // namespace

BidOverview OverviewOfBid(const ReportSource& source, const Markups& markups) {
  BidOverview state;
  Uncounted uncounted;
  ReportSource counted = source;
  counted.uncounted = &uncounted;
  Counter counter(state);
  try {
    const BidFigures bid = FiguresOfBid(counted, markups, &counter);
    state.total = bid.total;
    state.manhours = Raised(bid.manhours);
  } catch (const RunTimeFailure& failure) {
    state.failure = failure.text;
  }
  ReportSource again = source;
  again.uncounted = nullptr;
  try {
    AddRest(again, counter.systems, state);
  } catch (const RunTimeFailure& failure) {
    if (state.failure.isEmpty()) state.failure = failure.text;
  }
  state.uncounted = uncounted.Sentences();
  return state;
}

}  // namespace tamo
