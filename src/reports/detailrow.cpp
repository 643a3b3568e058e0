#include "reports/detailrow.h"

#include <algorithm>

#include "common/numbers.h"
#include "reports/figuretext.h"
#include "reports/projectfiles.h"

namespace tamo {
namespace {

constexpr QStringView kCents = u".00";
constexpr qsizetype kWorth = 14;

// Ends the text of `figure` before `end`.
void WriteBefore(char* end, QStringView figure) {
  char* to = end - figure.size();
  for (const QChar c : figure) *to++ = static_cast<char>(c.unicode());
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
  QString blank = name_ + QString(quantityWidth_, u' ') + unit_;
  if (office_) blank += QString(dollarsWidth_, u' ') + kCents.toString();
  // A quantity that reaches into the name's 20 characters is left to the long way.
  mostDigits_ = qMin(quantityWidth_, name_.size() + quantityWidth_ - 20);
  labor_ = SystemOfLine(blank) == u"Labor";
  if (IsLatin1(blank)) blank_ = blank.toLatin1();
  const qsizetype before = kWorth - dollarsWidth_ - kCents.size();
  onlyDollars_ = QStringView(unit_).last(qMin(before, unit_.size())).trimmed().isEmpty();
}

DetailRow DetailRow::Material(const PricedBlock& block, bool office) {
  return {office, Begin(office) + block.material + BlankView(21 - block.material.size()).toString(),
          QLatin1Char(' ') + block.orderUnit + QLatin1String("(s)") +
              BlankView(5 - block.orderUnit.size()).toString(),
          14, 13};
}

DetailRow DetailRow::Labor(bool office) {
  return {office, Begin(office) + QLatin1String("Labor"), QStringLiteral(" Manhours"), 30, 14};
}

DetailRow::Worth DetailRow::AddTo(TextRows& rows, double hundredths, double dollars) const {
  const FigureText quantity = FigureText::WithPoint(hundredths);
  const FigureText money = FigureText::Whole(office_ ? dollars : 0);
  const bool fits = !blank_.isEmpty() && quantity.Size() <= mostDigits_ &&
                    (!office_ || money.Size() <= dollarsWidth_);
  if (fits) {
    char* const row = rows.AddNarrow(blank_.size());
    std::copy_n(blank_.constData(), blank_.size(), row);
    WriteBefore(row + name_.size() + quantityWidth_, quantity.View());
    if (office_) WriteBefore(row + blank_.size() - kCents.size(), money.View());
    if (onlyDollars_) return {dollars, labor_};
  } else {
    const QStringView none;
    rows.Add({name_, BlankView(quantityWidth_ - quantity.Size()), quantity.View(), unit_,
              BlankView(dollarsWidth_ - money.Size()), office_ ? money.View() : none,
              office_ ? kCents : none});
  }
  if (!office_) return {};
  const QString row = rows[rows.size() - 1];
  return {Value(QStringView(row).last(qMin(kWorth, row.size()))), SystemOfLine(row) == u"Labor"};
}

}  // namespace tamo
