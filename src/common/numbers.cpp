#include "common/numbers.h"

#include <charconv>
#include <cmath>
#include <limits>
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

// All of these a double holds exactly.
constexpr double kTens[] = {1,    1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                            1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// The number that `text` begins with when it has at most 15 digits: a quotient of two numbers that
// a double holds exactly, so it is as exact as the long way. False when it is longer.
bool ShortNumber(QStringView text, double& number) {
  const char16_t* at = text.utf16();
  const char16_t* const end = at + text.size();
  while (at < end && *at == u' ') ++at;
  bool negative = false;
  if (at < end && (*at == u'-' || *at == u'+')) {
    negative = *at == u'-';
    ++at;
  }
  qint64 digits = 0;
  int count = 0;
  int places = 0;
  bool point = false;
  for (; at < end; ++at) {
    if (*at >= u'0' && *at <= u'9') {
      if (++count > 15) return false;
      digits = digits * 10 + (*at - u'0');
      if (point) ++places;
    } else if (*at == u'.' && !point) {
      point = true;
    } else {
      break;
    }
  }
  number = digits == 0 ? 0 : static_cast<double>(negative ? -digits : digits) / kTens[places];
  return true;
}

// A number as 15 digits hold it: `digits` behind a shift of the point by `places`.
struct Decimal {
  qint64 digits = 0;
  int places = -1;  // none: the number needs the long way

  bool Known() const { return places >= 0; }
  double AsDouble() const { return static_cast<double>(digits) / kTens[places]; }
};

// Figures of at most four decimals, as most are, hold their 15 digits exactly.
Decimal ShortDecimal(double number) {
  for (int places = 0; places <= 4; ++places) {
    const double shifted = number * kTens[places];
    if (!(std::abs(shifted) < 1e15)) break;
    const double whole = std::nearbyint(shifted);
    if (whole / kTens[places] == number) return {static_cast<qint64>(whole), places};
  }
  return {};
}

// Any other figure of an ordinary size, rounded to 15 digits in wider arithmetic. None where that
// is not wide enough, or too near to the middle of two roundings to be sure.
Decimal RoundedDecimal(double number) {
  const double size = std::abs(number);
  if (std::numeric_limits<long double>::digits < 64 || !(size >= 1e-6 && size < 1e15)) return {};
  int places = 15;
  for (int whole = 0; whole < 15 && size >= kTens[whole]; ++whole) --places;
  for (double least = .1; size < least; least /= 10) ++places;
  const long double shifted = static_cast<long double>(number) * kTens[places];
  const long double whole = std::floor(shifted);
  const long double rest = shifted - whole;
  if (std::abs(rest - 0.5L) < 0.001L) return {};
  Decimal decimal{static_cast<qint64>(whole) + (rest > 0.5L ? 1 : 0), places};
  while (decimal.places > 0 && decimal.digits % 10 == 0) {
    decimal.digits /= 10;
    --decimal.places;
  }
  return decimal;
}

Decimal AsDecimal(double number) {
  const Decimal decimal = ShortDecimal(number);
  return decimal.Known() ? decimal : RoundedDecimal(number);
}

QString DecimalText(const Decimal& decimal) {
  char16_t buffer[48];
  char16_t* const end = buffer + 48;
  char16_t* at = end;
  quint64 rest = static_cast<quint64>(decimal.digits < 0 ? -decimal.digits : decimal.digits);
  for (int place = 0; rest != 0 || place < decimal.places || place == 0; ++place) {
    if (place == decimal.places && place > 0) *--at = u'.';
    *--at = static_cast<char16_t>(u'0' + rest % 10);
    rest /= 10;
  }
  if (decimal.places > 0 && end - at == decimal.places) *--at = u'.';
  if (decimal.digits < 0) *--at = u'-';
  return QString(reinterpret_cast<const QChar*>(at), end - at);
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
  double number = 0;
  if (ShortNumber(text, number)) return number;
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
  const Decimal decimal = AsDecimal(number);
  if (decimal.Known()) return DecimalText(decimal);
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
  const Decimal decimal = AsDecimal(number);
  if (decimal.Known()) return decimal.digits == 0 ? 0 : decimal.AsDouble();
  return Value(NumberText(number));
}

double Divided(double dividend, double divisor, const QString& what) {
  if (divisor == 0) throw RunTimeFailure(kDivisionByZero, what);
  return dividend / divisor;
}

}  // namespace tamo
