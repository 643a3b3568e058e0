#include "reports/detailrow.h"

#include <algorithm>

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
void WriteWhole(QChar* end, quint64 whole) {
  do {
    *--end = QChar(static_cast<char16_t>(u'0' + whole % 10));
    whole /= 10;
  } while (whole != 0);
}

void WriteHundredths(QChar* end, quint64 hundredths) {
  *--end = QChar(static_cast<char16_t>(u'0' + hundredths % 10));
  *--end = QChar(static_cast<char16_t>(u'0' + hundredths / 10 % 10));
  *--end = u'.';
  if (hundredths >= 100) WriteWhole(end, hundredths / 100);
}

// The least whole number of more than `digits` digits.
double EndOfFigures(qsizetype digits) {
  double end = digits < 1 ? 0 : 1;
  for (qsizetype i = std::min(digits, kMostDigits); i > 0; --i) end *= 10;
  return end;
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
  blank_.reserve(name_.size() + quantityWidth_ + unit_.size() + dollarsWidth_ + kCents.size());
  blank_.append(name_).resize(name_.size() + quantityWidth_, u' ');
  blank_.append(unit_);
  if (office_) {
    blank_.resize(blank_.size() + dollarsWidth_, u' ');
    blank_.append(kCents);
  }
  labor_ = SystemOfLine(blank_) == u"Labor";
  // Of the last 14 characters nothing but the dollars may be read.
  const qsizetype before = kWorth - dollarsWidth_ - kCents.size();
  if (office_ && !QStringView(unit_).last(qMin(before, unit_.size())).trimmed().isEmpty()) return;
  // A quantity must not reach into the name's 20 characters. One character of it is the point, and
  // two digits it always has.
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

QString DetailRow::Text(double hundredths, double dollars) const {
  QString row(blank_.constData(), blank_.size());
  QChar* const text = row.data();
  WriteHundredths(text + name_.size() + quantityWidth_, static_cast<quint64>(hundredths));
  if (office_) WriteWhole(text + row.size() - kCents.size(), static_cast<quint64>(dollars));
  return row;
}

DetailRow::Worth DetailRow::AddTo(TextRows& rows, double hundredths, double dollars) const {
  QString row = name_ + GrownLeft(WithPoint(hundredths), quantityWidth_) + unit_;
  if (office_) row += GrownLeft(NumberText(dollars), dollarsWidth_) + kCents;
  rows += row;
  if (!office_) return {};
  return {Value(QStringView(row).last(qMin(kWorth, row.size()))), SystemOfLine(row) == u"Labor"};
}

}  // namespace tamo
