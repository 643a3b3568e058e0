#include "reports/detailrow.h"

#include <algorithm>
#include <utility>

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
  static constexpr double kEnds[] = {0,   1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                     1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  return kEnds[std::clamp<qsizetype>(digits, 0, kMostDigits)];
}

void Fill(QString& line, qsizetype size) {
  if (line.size() < size) line.resize(size, u' ');
}

// With room for `size` characters.
QString Begun(bool office, qsizetype size) {
  QString line;
  line.reserve(size);
  line.append(office ? QLatin1String("     ") : QLatin1String("___  "));
  return line;
}

}  // namespace

DetailRow::DetailRow(bool office, QString&& line, qsizetype quantityFrom, qsizetype unitFrom,
                     qsizetype dollarsFrom)
    : office_(office),
      blank_(std::move(line)),
      quantityFrom_(quantityFrom),
      unitFrom_(unitFrom),
      dollarsFrom_(dollarsFrom),
      labor_(SystemOfLine(blank_) == u"Labor") {
  // Of the last 14 characters nothing but the dollars may be read.
  const qsizetype worthFrom = std::max(blank_.size() - kWorth, unitFrom_);
  if (office_ && worthFrom < dollarsFrom_ &&
      !QStringView(blank_).sliced(worthFrom, dollarsFrom_ - worthFrom).trimmed().isEmpty())
    return;
  // A quantity must not reach into the name's 20 characters. One character of it is the point, and
  // two digits it always has.
  const qsizetype digits = unitFrom_ - std::max<qsizetype>(quantityFrom_, 20) - 1;
  endOfHundredths_ = digits < 2 ? 0 : EndOfFigures(digits);
  endOfDollars_ = office_ ? EndOfFigures(blank_.size() - kCents.size() - dollarsFrom_) : 1;
}

DetailRow DetailRow::Material(const PricedBlock& block, bool office) {
  constexpr qsizetype kName = 26;  // with its begin
  constexpr qsizetype kUnit = 9;   // with the blank before it and "(s)" behind it
  QString line = Begun(office, 80 + block.material.size() + block.orderUnit.size());
  line.append(block.material);
  Fill(line, kName);
  const qsizetype quantityFrom = line.size();
  const qsizetype unitFrom = quantityFrom + 14;
  Fill(line, unitFrom);
  line.append(u' ').append(block.orderUnit).append(QLatin1String("(s)"));
  Fill(line, unitFrom + kUnit);
  const qsizetype dollarsFrom = line.size();
  if (office) Fill(line, dollarsFrom + 10);
  if (office) line.append(kCents);
  return {office, std::move(line), quantityFrom, unitFrom, dollarsFrom};
}

DetailRow DetailRow::Labor(bool office) {
  QString line = Begun(office, 80);
  line.append(QLatin1String("Labor"));
  const qsizetype quantityFrom = line.size();
  const qsizetype unitFrom = quantityFrom + 30;
  Fill(line, unitFrom);
  line.append(QLatin1String(" Manhours"));
  const qsizetype dollarsFrom = line.size();
  if (office) Fill(line, dollarsFrom + 11);
  if (office) line.append(kCents);
  return {office, std::move(line), quantityFrom, unitFrom, dollarsFrom};
}

QString DetailRow::Text(double hundredths, double dollars) const {
  QString row(blank_.constData(), blank_.size());
  QChar* const text = row.data();
  WriteHundredths(text + unitFrom_, static_cast<quint64>(hundredths));
  if (office_) WriteWhole(text + row.size() - kCents.size(), static_cast<quint64>(dollars));
  return row;
}

DetailRow::Worth DetailRow::AddTo(TextRows& rows, double hundredths, double dollars) const {
  QString row = blank_.first(quantityFrom_) +
                GrownLeft(WithPoint(hundredths), unitFrom_ - quantityFrom_) +
                blank_.sliced(unitFrom_, dollarsFrom_ - unitFrom_);
  if (office_)
    row += GrownLeft(NumberText(dollars), blank_.size() - kCents.size() - dollarsFrom_) + kCents;
  rows += row;
  if (!office_) return {};
  return {Value(QStringView(row).last(qMin(kWorth, row.size()))), SystemOfLine(row) == u"Labor"};
}

}  // namespace tamo
