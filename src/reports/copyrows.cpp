#include "reports/copyrows.h"

#include <algorithm>
#include <utility>

#include "common/columns.h"
#include "common/giveback.h"

namespace tamo {
namespace {

const QString kIndent = QStringLiteral("   ");
// Dollars below this are at most 16 characters as money.
constexpr double kEndOfMoney = 1e13;

qsizetype NameWidth(SheetKind kind) {
  return kind == SheetKind::Room ? 21 : 20;
}
qsizetype SubtotalWidth(SheetKind kind) {
  return kind == SheetKind::Room ? 28 : 26;
}

// Below a head a material's line and that of its labor come in turn, counted from 1.
size_t MaterialOf(qsizetype line) {
  return static_cast<size_t>(line - 1) / 2;
}

bool IsNarrow(QStringView text) {
  unsigned seen = 0;
  for (const QChar c : text) seen |= c.unicode();
  return seen <= 0xFF;
}

}  // namespace

CopySystem::CopySystem(const QString& asked, std::shared_ptr<const PricedSystem> priced,
                       bool office)
    : name(asked), system(std::move(priced)), blocks(system->blocks) {
  materials.reserve(system->blocks.size());
  for (const PricedBlock& block : system->blocks) {
    materials.push_back(DetailRow::Material(block, office));
    longest = std::max(longest, materials.back().Size());
  }
}

QString CopyHead(SheetKind kind, const QString& system, QStringView end) {
  QString head = kIndent + GrownRight(system, NameWidth(kind));
  return head.append(end);
}

QString CopyHead(SheetKind kind, const QString& system, QStringView end, double dollars) {
  return CopyHead(kind, system, end) + GrownLeft(MoneyText(dollars), SubtotalWidth(kind));
}

CopyRows::CopyRows(const CopyArithmetic& arithmetic)
    : arithmetic_(arithmetic), labor_(DetailRow::Labor(arithmetic.Office())) {}

CopyRows::~CopyRows() {
  if (spans_.Size() > 100'000) GiveBackAside(std::move(spans_));
}

int CopyRows::AddSystem(const QString& asked, const std::shared_ptr<const PricedSystem>& priced) {
  systems_.push_back(std::make_unique<CopySystem>(asked, priced, arithmetic_.Office()));
  return static_cast<int>(systems_.size()) - 1;
}

// Of a head whose money fits its column.
qsizetype CopyRows::HeadSize(SheetKind kind, const CopySystem& system, qsizetype end) const {
  return kIndent.size() + std::max(NameWidth(kind), system.name.size()) + end +
         (arithmetic_.Office() ? SubtotalWidth(kind) : 0);
}

void CopyRows::AddSpan(qint32 system, double quantity, qsizetype rows) {
  const auto number = static_cast<quint32>(spans_.Size());
  spans_.Add({static_cast<quint32>(count_), system, quantity});
  count_ += rows;
  while (static_cast<qsizetype>(marks_.size()) * kMarkRows < count_) marks_.push_back(number);
}

void CopyRows::AddText(const QString& row, qint32 system) {
  texts_ += row;
  longest_ = std::max(longest_, row.size());
  AddSpan(system, 0, 1);
}

bool CopyRows::Fit(const CopySystem& system, const std::vector<CopyFigures>& figures) const {
  for (size_t i = 0; i < figures.size(); ++i) {
    const CopyFigures& of = figures[i];
    if (!system.materials[i].Fits(of.material, of.materialDollars) ||
        !labor_.Fits(of.labor, of.laborDollars))
      return false;
  }
  return true;
}

bool CopyRows::AddLine(SheetKind kind, int system, QStringView end, double quantity,
                       const std::vector<CopyFigures>& figures, double dollars) {
  const CopySystem& of = System(system);
  if (!of.blocks.StandAlone() || !IsNarrow(end) || !(dollars < kEndOfMoney) || !Fit(of, figures))
    return false;
  char* to = texts_.AddNarrow(end.size());
  for (const QChar c : end) *to++ = static_cast<char>(c.unicode());
  longest_ = std::max({longest_, HeadSize(kind, of, end.size()), of.longest, labor_.Size()});
  AddSpan(system * 2 + (kind == SheetKind::Room ? 0 : 1), quantity,
          1 + 2 * static_cast<qsizetype>(figures.size()));
  return true;
}

// The last span that begins at `row` or before it.
size_t CopyRows::SpanAt(qsizetype row) const {
  const auto mark = static_cast<size_t>(row / kMarkRows);
  size_t at = marks_[mark];
  size_t end = mark + 1 < marks_.size() ? marks_[mark + 1] + 1 : spans_.Size();
  while (end - at > 1) {
    const size_t middle = at + (end - at) / 2;
    (static_cast<qsizetype>(spans_[middle].first) <= row ? at : end) = middle;
  }
  return at;
}

bool CopyRows::IsDetail(qsizetype at) const {
  const Span& span = spans_[SpanAt(at)];
  return span.system == kDetail || static_cast<qsizetype>(span.first) != at;
}

QString CopyRows::Row(qsizetype at) const {
  const size_t number = SpanAt(at);
  const Span& span = spans_[number];
  const qsizetype line = at - static_cast<qsizetype>(span.first);
  if (line > 0) return Detail(span, line);
  const QString text = texts_[static_cast<qsizetype>(number)];
  return span.system < 0 ? text : Head(span, text);
}

qsizetype CopyRows::SizeOf(qsizetype at) const {
  const size_t number = SpanAt(at);
  const Span& span = spans_[number];
  const qsizetype line = at - static_cast<qsizetype>(span.first);
  if (line > 0)
    return line % 2 == 0 ? labor_.Size() : SystemOf(span).materials[MaterialOf(line)].Size();
  const qsizetype text = texts_.SizeOf(static_cast<qsizetype>(number));
  return span.system < 0 ? text : HeadSize(KindOf(span), SystemOf(span), text);
}

size_t CopyRows::Bytes() const {
  return texts_.Bytes() + spans_.Bytes() + marks_.size() * sizeof marks_[0];
}

std::vector<CopyFigures> CopyRows::FiguresOf(const Span& span) const {
  const CopySystem& system = SystemOf(span);
  std::vector<CopyFigures> figures;
  StandingFigures standing;
  arithmetic_.Work(system.blocks, span.quantity, system.name, standing, figures);
  return figures;
}

QString CopyRows::Head(const Span& span, const QString& end) const {
  const CopySystem& system = SystemOf(span);
  if (!arithmetic_.Office()) return CopyHead(KindOf(span), system.name, end);
  double dollars = 0;
  for (const CopyFigures& of : FiguresOf(span)) {
    dollars += of.materialDollars;
    dollars += of.laborDollars;
  }
  return CopyHead(KindOf(span), system.name, end, dollars);
}

QString CopyRows::Detail(const Span& span, qsizetype line) const {
  const size_t material = MaterialOf(line);
  const CopyFigures of = FiguresOf(span)[material];
  return line % 2 == 0 ? labor_.Text(of.labor, of.laborDollars)
                       : SystemOf(span).materials[material].Text(of.material, of.materialDollars);
}

}  // namespace tamo
