// Why the rows of a report are made as they are: the detail rows of the copies beside rows put
// together plainly, and rows that are kept in a few large pieces beside a list of texts.
#include <benchmark/benchmark.h>

#include "common/columns.h"
#include "common/memory.h"
#include "common/numbers.h"
#include "reports/detailrow.h"
#include "reports/rollup.h"

namespace {

using namespace tamo;

constexpr int kRows = 100000;

[[maybe_unused]] const bool kMemoryIsKept = [] {
  KeepMemory();
  return true;
}();

PricedBlock Slab() {
  PricedBlock block;
  block.material = QStringLiteral("Slab");
  block.orderUnit = QStringLiteral("EA");
  return block;
}

void BM_DetailRow(benchmark::State& state) {
  const DetailRow row = DetailRow::Material(Slab(), true);
  for (auto _ : state) {
    TextRows rows;
    for (int i = 0; i < kRows; ++i) row.AddTo(rows, 100 + i, i);
    benchmark::DoNotOptimize(rows);
  }
  state.SetItemsProcessed(state.iterations() * kRows);
}

void BM_PlainDetailRow(benchmark::State& state) {
  const PricedBlock block = Slab();
  for (auto _ : state) {
    TextRows rows;
    for (int i = 0; i < kRows; ++i) {
      rows += QStringLiteral("     ") + GrownRight(block.material, 21) +
              GrownLeft(WithPoint(100 + i), 14) + QLatin1Char(' ') + block.orderUnit +
              QStringLiteral("(s)") + GrownBlanks(5 - block.orderUnit.size()) +
              GrownLeft(NumberText(i) + QStringLiteral(".00"), 13);
    }
    benchmark::DoNotOptimize(rows);
  }
  state.SetItemsProcessed(state.iterations() * kRows);
}

// The same rows as they are kept, and their memory in bytes for each of their characters.
const QString kRow(64, QLatin1Char('x'));

void BM_TextRows(benchmark::State& state) {
  for (auto _ : state) {
    TextRows rows;
    for (int i = 0; i < kRows; ++i) rows.Add({kRow});
    state.counters["bytes_a_character"] =
        static_cast<double>(rows.Bytes()) / (static_cast<double>(kRow.size()) * kRows);
  }
  state.SetItemsProcessed(state.iterations() * kRows);
}

void BM_PlainRows(benchmark::State& state) {
  for (auto _ : state) {
    QStringList rows;
    for (int i = 0; i < kRows; ++i) rows += QString(kRow.constData(), kRow.size());
    benchmark::DoNotOptimize(rows);
  }
  state.counters["bytes_a_character"] = 2 + (sizeof(QString) + 32.0) / kRow.size();
  state.SetItemsProcessed(state.iterations() * kRows);
}

BENCHMARK(BM_DetailRow)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PlainDetailRow)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_TextRows)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PlainRows)->Unit(benchmark::kMillisecond);

}  // namespace
