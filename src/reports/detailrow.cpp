#include "reports/detailrow.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "common/columns.h"
#include "common/numbers.h"
#include "records/linecolumns.h"
#include "reports/rollup.h"

namespace tamo {
namespace {

const QString kCents = QStringLiteral(".00");
constexpr qsizetype kWorth = 14;
constexpr qsizetype kMostDigits = 15;  // that a figure holds exactly

// The digits of a whole number, the last one before `end`.
void WriteWhole(char* end, quint64 whole) {
  do {
    *--end = static_cast<char>('0' + whole % 10);
    whole /= 10;
  } while (whole != 0);
}

void WriteHundredths(char* end, quint64 hundredths) {
  *--end = static_cast<char>('0' + hundredths % 10);
  *--end = static_cast<char>('0' + hundredths / 10 % 10);
  *--end = '.';
  if (hundredths >= 100) WriteWhole(end, hundredths / 100);
}

// The least whole number of more than `digits` digits.
double EndOfFigures(qsizetype digits) {
  return digits < 1 ? 0 : std::pow(10, static_cast<double>(std::min(digits, kMostDigits)));
}

bool IsLatin1(const QString& text) {
  return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() <= 0xFF; });
}

QString Begin(bool office) {
  return office ? QStringLiteral("     ") : QStringLiteral("___  ");
}

}  // namespace

DetailRow::DetailRow(bool office, const QString& name, const QString& unit, qsizetype quantityWidth,
                     qsizetype dollarsWidth)
    : office_(office),
      name_(name),
      unit_(unit),
      quantityWidth_(quantityWidth),
      dollarsWidth_(office ? dollarsWidth - kCents.size() : 0) {
  QString blank = name_ + Blanks(quantityWidth_) + unit_;
  if (office_) blank += Blanks(dollarsWidth_) + kCents;
  labor_ = SystemOfLine(blank) == u"Labor";
  const qsizetype before = kWorth - dollarsWidth_ - kCents.size();
  onlyDollars_ = QStringView(unit_).last(qMin(before, unit_.size())).trimmed().isEmpty();
  if (!IsLatin1(blank)) return;
  blank_ = blank.toLatin1();
  // A quantity that reaches into the name's 20 characters is left to the long way. One character of
  // it is the point, and two digits it always has.
  const qsizetype digits = qMin(quantityWidth_, name_.size() + quantityWidth_ - 20) - 1;
  endOfHundredths_ = digits < 2 ? 0 : EndOfFigures(digits);
  endOfDollars_ = office_ ? EndOfFigures(dollarsWidth_) : 1;
}

DetailRow DetailRow::Material(const PricedBlock& block, bool office) {
  return {office, Begin(office) + GrownRight(block.material, 21),
          QLatin1Char(' ') + block.orderUnit + QLatin1String("(s)") +
              GrownBlanks(5 - block.orderUnit.size()),
          14, 13};
}

DetailRow DetailRow::Labor(bool office) {
  return {office, Begin(office) + QLatin1String("Labor"), QStringLiteral(" Manhours"), 30, 14};
}

DetailRow::Worth DetailRow::AddTo(TextRows& rows, double hundredths, double dollars) const {
  const bool fits =
      hundredths >= 0 && hundredths < endOfHundredths_ && dollars >= 0 && dollars < endOfDollars_;
  if (!fits) return AddGrown(rows, hundredths, dollars);
  char* const row = rows.AddNarrow(blank_.size());
  std::memcpy(row, blank_.constData(), static_cast<size_t>(blank_.size()));
  WriteHundredths(row + name_.size() + quantityWidth_, static_cast<quint64>(hundredths));
  if (!office_) return {};
  WriteWhole(row + blank_.size() - kCents.size(), static_cast<quint64>(dollars));
  return onlyDollars_ ? Worth{dollars, labor_} : ReadWorth(rows);
}

DetailRow::Worth DetailRow::AddGrown(TextRows& rows, double hundredths, double dollars) const {
  QString row = name_ + GrownLeft(WithPoint(hundredths), quantityWidth_) + unit_;
  if (office_) row += GrownLeft(NumberText(dollars), dollarsWidth_) + kCents;
  rows += row;
  return office_ ? ReadWorth(rows) : Worth();
}

DetailRow::Worth DetailRow::ReadWorth(const TextRows& rows) const {
  const QString row = rows[rows.size() - 1];
  return {Value(QStringView(row).last(qMin(kWorth, row.size()))), SystemOfLine(row) == u"Labor"};
}

}  // namespace tamo
