#pragma once

#include <QString>
#include <QStringView>

namespace tamo {

// The text of a whole number, made without an allocation for the hundred thousand lines of a large
// copy: as number text, or as hundredths with a point before the last two digits (.05, 12.50).
class FigureText {
 public:
  static FigureText Whole(double whole) { return {whole, false}; }
  static FigureText WithPoint(double hundredths) { return {hundredths, true}; }
  // As MakeMoney: "0.00", .05, 12.50.
  static FigureText Money(double dollars);

  // The number that the text of WithPoint is read as; not always a hundredth of it: -5 hundredths
  // are shown as ".-5", which is read as 0.
  static double ReadWithPoint(double hundredths);

  QStringView View() const {
    return long_.isEmpty() ? QStringView(buffer_ + from_, kSize - from_) : QStringView(long_);
  }
  qsizetype Size() const { return View().size(); }

 private:
  explicit FigureText(const QString& text) : long_(text) {}
  FigureText(double whole, bool point);

  static constexpr int kSize = 20;
  char16_t buffer_[kSize];
  int from_ = kSize;
  QString long_;  // of a figure of more than 15 digits
};

// `count` blanks; none for a negative count. At most 128.
QStringView BlankView(qsizetype count);

}  // namespace tamo
