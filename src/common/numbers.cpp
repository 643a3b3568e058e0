#include "common/numbers.h"

#include <charconv>
#include <cmath>
#include <string>

#include "common/failure.h"

namespace tamo {
namespace {

bool IsDigit(QChar c) {
  return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

// A comma stands for nothing when a digit is before it and three digits, no more, behind it.
bool IsGroupComma(QStringView text, qsizetype at) {
  if (text[at] != QLatin1Char(',') || at == 0 || !IsDigit(text[at - 1])) return false;
  if (at + 3 >= text.size()) return false;
  for (qsizetype i = at + 1; i <= at + 3; ++i) {
    if (!IsDigit(text[i])) return false;
  }
  return at + 4 >= text.size() || !IsDigit(text[at + 4]);
}

double LeadingNumber(QStringView text, bool skipGroupCommas) {
  qsizetype at = 0;
  while (at < text.size() && text[at] == QLatin1Char(' ')) ++at;
  std::string digits;
  if (at < text.size() && (text[at] == QLatin1Char('-') || text[at] == QLatin1Char('+'))) {
    if (text[at] == QLatin1Char('-')) digits += '-';
    ++at;
  }
  bool point = false;
  bool any = false;
  for (; at < text.size(); ++at) {
    const QChar c = text[at];
    if (IsDigit(c)) {
      digits += static_cast<char>(c.unicode());
      any = true;
    } else if (c == QLatin1Char('.') && !point) {
      point = true;
      digits += '.';
    } else if (!(skipGroupCommas && !point && IsGroupComma(text, at))) {
      break;
    }
  }
  if (!any) return 0;
  double number = 0;
  const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (result.ec == std::errc::result_out_of_range) {
    // Out of range downward is as good as 0; upward no figure could be made of it.
    if (text.size() > 300 && std::abs(number) < 1 && digits.find_first_of("123456789") > 300)
      return 0;
    throw RunTimeFailure(
        kOverflow,
        QStringLiteral("The number %1... is larger than any number that can be worked with. "
                       "Correct the entry.")
            .arg(text.left(20)));
  }
  return number == 0 ? 0 : number;
}

}  // namespace

double Value(QStringView text) {
  return LeadingNumber(text, false);
}

double GroupedValue(QStringView text) {
  return LeadingNumber(text, true);
}

QString NumberText(double number) {
  if (!std::isfinite(number)) {
    throw RunTimeFailure(
        kOverflow, QStringLiteral("A figure grew larger than any number that can be worked with. "
                                  "Look for a quantity, price or ratio that was mistyped."));
  }
  if (number == 0) return QStringLiteral("0");
  char buffer[40];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, std::abs(number),
                                 std::chars_format::scientific, 14)
                       .ptr;
  const std::string scientific(buffer, end);
  const auto mark = scientific.find('e');
  std::string digits = scientific.substr(0, 1) + scientific.substr(2, mark - 2);
  const int exponent = std::stoi(scientific.substr(mark + 1));
  digits.erase(digits.find_last_not_of('0') + 1);
  const int whole = exponent + 1;  // digits before the point
  std::string text = number < 0 ? "-" : "";
  if (whole <= 0) {
    text += "." + std::string(static_cast<size_t>(-whole), '0') + digits;
  } else if (static_cast<size_t>(whole) >= digits.size()) {
    text += digits + std::string(static_cast<size_t>(whole) - digits.size(), '0');
  } else {
    text += digits.substr(0, static_cast<size_t>(whole)) + "." +
            digits.substr(static_cast<size_t>(whole));
  }
  return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

QString SignedNumberText(double number) {
  const QString text = NumberText(number);
  return text.startsWith(QLatin1Char('-')) ? text : QLatin1Char(' ') + text;
}

double CutTo15Digits(double number) {
  return Value(NumberText(number));
}

double Rounded(double number) {
  return std::floor(number + 0.5);
}
double Raised(double number) {
  return std::floor(number + 0.9);
}
double Truncated(double number) {
  return std::floor(number);
}

double Divided(double dividend, double divisor, const QString& what) {
  if (divisor == 0) throw RunTimeFailure(kDivisionByZero, what);
  return dividend / divisor;
}

}  // namespace tamo
