// The names offered under a field while it is typed in, out of 10,000 systems: each key by itself,
// the first key after the list has changed, and beside them a walk through the list that only looks
// for what begins so.
#include <benchmark/benchmark.h>

#include "common/suggestionindex.h"

namespace {

constexpr int kSystems = 10000;
constexpr int kOffered = 8;

const QStringList& Names() {
  static const QStringList names = [] {
    const QStringList heads = {QStringLiteral("GWB Partition"), QStringLiteral("Wall Paint"),
                               QStringLiteral("ACT Ceiling"),   QStringLiteral("Rubber Base"),
                               QStringLiteral("Metal Stud"),    QStringLiteral("Ceramic Tile")};
    QStringList made;
    for (int i = 0; i < kSystems; ++i)
      made += QStringLiteral("%1 %2").arg(heads[i % heads.size()]).arg(i);
    return made;
  }();
  return names;
}

tamo::NameUses Uses() {
  tamo::NameUses uses;
  for (int i = 0; i < kSystems; i += 3) uses[tamo::SuggestionIndex::KeyOf(Names()[i])] = i % 7;
  return uses;
}

// The argument is a text that is typed, of which each key is timed alone.
const char* const kTyped[] = {"w", "wall p", "eiling", "cieling", "prtition 99", "zzzzzz"};

void Key(benchmark::State& state) {
  tamo::SuggestionIndex index;
  index.SetNames(Names());
  const tamo::NameUses uses = Uses();
  const QString typed = QLatin1String(kTyped[state.range(0)]);
  for (auto _ : state) benchmark::DoNotOptimize(index.Matches(typed, kOffered, uses));
  state.SetLabel(kTyped[state.range(0)]);
}
BENCHMARK(Key)->DenseRange(0, 5)->Unit(benchmark::kMillisecond);

void FirstKeyAfterAChange(benchmark::State& state) {
  const tamo::NameUses uses = Uses();
  for (auto _ : state) {
    tamo::SuggestionIndex index;
    index.SetNames(Names());
    benchmark::DoNotOptimize(index.Matches(QStringLiteral("w"), kOffered, uses));
  }
}
BENCHMARK(FirstKeyAfterAChange)->Unit(benchmark::kMillisecond);

void PlainWalk(benchmark::State& state) {
  for (auto _ : state) {
    QStringList found;
    for (const QString& name : Names()) {
      if (name.startsWith(QStringLiteral("wall p"), Qt::CaseInsensitive)) found += name;
    }
    benchmark::DoNotOptimize(found);
  }
}
BENCHMARK(PlainWalk)->Unit(benchmark::kMillisecond);

}  // namespace
