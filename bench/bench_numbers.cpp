// Why numbers have a quick way of their own: each beside the plain one of the standard library, on
// the figures of a takeoff. A report of 1,000,000 lines reads two million and writes five million.
#include <benchmark/benchmark.h>

#include <charconv>
#include <string>
#include <vector>

#include "common/numbers.h"

namespace {

using namespace tamo;

std::vector<QString> Quantities() {
  std::vector<QString> texts;
  for (int i = 0; i < 1000; ++i)
    texts.push_back(QStringLiteral("%1").arg(8 + i * 17 % 2400 + i % 4 * .25, 14, 'f', 2));
  return texts;
}

std::vector<double> Figures() {
  std::vector<double> figures;
  for (int i = 0; i < 1000; ++i) figures.push_back((8 + i * 17 % 2400) / 32.0 + i % 7 / 45.0);
  return figures;
}

double PlainValue(QStringView text) {
  const QByteArray digits = text.trimmed().toLatin1();
  double number = 0;
  std::from_chars(digits.constData(), digits.constData() + digits.size(), number);
  return number;
}

// The 15 digits of a number, read back.
double PlainCut(double number) {
  char buffer[40];
  const auto end =
      std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::general, 15);
  double cut = 0;
  std::from_chars(buffer, end.ptr, cut);
  return cut;
}

QString PlainText(double number) {
  char buffer[40];
  const auto end =
      std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::fixed, 12);
  QString text = QString::fromLatin1(buffer, end.ptr - buffer);
  while (text.endsWith(QLatin1Char('0'))) text.chop(1);
  if (text.endsWith(QLatin1Char('.'))) text.chop(1);
  return text.startsWith(QLatin1String("0.")) ? text.mid(1) : text;
}

template <typename Inputs, typename Work>
void Run(benchmark::State& state, const Inputs& inputs, Work work) {
  for (auto _ : state) {
    for (const auto& input : inputs) benchmark::DoNotOptimize(work(input));
  }
  state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(inputs.size()));
}

void BM_Value(benchmark::State& state) {
  Run(state, Quantities(), [](const QString& text) { return Value(text); });
}
void BM_PlainValue(benchmark::State& state) {
  Run(state, Quantities(), [](const QString& text) { return PlainValue(text); });
}
void BM_CutTo15Digits(benchmark::State& state) {
  Run(state, Figures(), [](double figure) { return CutTo15Digits(figure); });
}
void BM_PlainCut(benchmark::State& state) {
  Run(state, Figures(), [](double figure) { return PlainCut(figure); });
}
void BM_NumberText(benchmark::State& state) {
  Run(state, Figures(), [](double figure) { return NumberText(figure); });
}
void BM_PlainText(benchmark::State& state) {
  Run(state, Figures(), [](double figure) { return PlainText(figure); });
}
void BM_Truncated(benchmark::State& state) {
  Run(state, Figures(), [](double figure) { return Truncated(figure); });
}
void BM_Floor(benchmark::State& state) {
  Run(state, Figures(), [](double figure) { return std::floor(figure); });
}
BENCHMARK(BM_Truncated);
BENCHMARK(BM_Floor);
BENCHMARK(BM_Value);
BENCHMARK(BM_PlainValue);
BENCHMARK(BM_CutTo15Digits);
BENCHMARK(BM_PlainCut);
BENCHMARK(BM_NumberText);
BENCHMARK(BM_PlainText);

}  // namespace
