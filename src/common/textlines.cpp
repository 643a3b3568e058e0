#include "common/textlines.h"

#include <QStringDecoder>
#include <array>

namespace tamo {
namespace {

// The 32 code points of Windows-1252 that differ from Latin-1; the five unassigned bytes stay
// control codes.
constexpr std::array<char16_t, 32> kWindows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

QString FromWindows1252(const QByteArray& bytes) {
  QString text;
  text.reserve(bytes.size());
  for (const char byte : bytes) {
    const auto code = static_cast<unsigned char>(byte);
    text += code >= 0x80 && code < 0xA0 ? QChar(kWindows1252[code - 0x80U])
                                        : QChar(static_cast<char16_t>(code));
  }
  return text;
}

}  // namespace

bool IsText(const QString& decoded) {
  return !decoded.contains(QChar(u'\0'));
}

QString DecodedText(const QByteArray& bytes) {
  if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF")) {
    QStringDecoder utf16(QStringDecoder::Utf16, QStringDecoder::Flag::Stateless);
    return utf16(bytes);
  }
  const QByteArray body = bytes.startsWith("\xEF\xBB\xBF") ? bytes.mid(3) : bytes;
  QStringDecoder utf8(QStringDecoder::Utf8,
                      QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
  const QString text = utf8(body);
  return utf8.hasError() ? FromWindows1252(body) : text;
}

QStringList WholeLines(const QString& text) {
  QStringList lines;
  qsizetype start = 0;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar c = text[i];
    if (c != QLatin1Char('\r') && c != QLatin1Char('\n')) continue;
    lines += text.mid(start, i - start);
    if (c == QLatin1Char('\r') && i + 1 < text.size() && text[i + 1] == QLatin1Char('\n')) ++i;
    start = i + 1;
  }
  if (start < text.size()) lines += text.mid(start);
  return lines;
}

QStringList DelimitedFields(const QString& text) {
  QStringList fields;
  for (const QString& line : WholeLines(text)) {
    for (const QString& piece : line.split(QLatin1Char(','))) {
      qsizetype first = 0;
      while (first < piece.size() && piece[first] == QLatin1Char(' ')) ++first;
      fields += piece.mid(first);
    }
  }
  return fields;
}

QString JoinedLines(const QStringList& lines) {
  QString text = QStringLiteral("");  // no lines are a text, too
  for (const QString& line : lines) text += line + QLatin1String("\r\n");
  return text;
}

}  // namespace tamo
