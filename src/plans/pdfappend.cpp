#include "plans/pdfappend.h"

#include <QString>
#include <algorithm>
#include <cmath>

#include "plans/filetail.h"

namespace tamo {
namespace {

struct Entry {
  int number = 0;
  int generation = 0;
  qint64 place = 0;
};

// Runs of neighbouring numbers: each becomes one part of the table.
std::vector<std::pair<size_t, size_t>> Runs(const std::vector<Entry>& entries) {
  std::vector<std::pair<size_t, size_t>> runs;
  for (size_t i = 0; i < entries.size(); ++i) {
    if (!runs.empty() && entries[i].number == entries[i - 1].number + 1) {
      ++runs.back().second;
    } else {
      runs.emplace_back(i, 1);
    }
  }
  return runs;
}

QByteArray Digits(qint64 value, int width) {
  return QByteArray::number(value).rightJustified(width, '0');
}

QByteArray Table(const std::vector<Entry>& entries, const QByteArray& trailer) {
  QByteArray text = "xref\n";
  for (const auto& [first, count] : Runs(entries)) {
    text +=
        QByteArray::number(entries[first].number) + ' ' + QByteArray::number(qint64(count)) + '\n';
    for (size_t i = first; i < first + count; ++i) {
      text += Digits(entries[i].place, 10) + ' ' + Digits(entries[i].generation, 5) + " n \n";
    }
  }
  return text + "trailer\n<<" + trailer + ">>\n";
}

QByteArray Stream(const std::vector<Entry>& entries, const QByteArray& trailer) {
  QByteArray data;
  QByteArray index;
  for (const auto& [first, count] : Runs(entries)) {
    index +=
        QByteArray::number(entries[first].number) + ' ' + QByteArray::number(qint64(count)) + ' ';
  }
  for (const Entry& entry : entries) {
    data += '\1';
    for (int shift = 40; shift >= 0; shift -= 8) data += static_cast<char>(entry.place >> shift);
    data += static_cast<char>(entry.generation >> 8);
    data += static_cast<char>(entry.generation);
  }
  return "<</Type/XRef/W[1 6 2]/Index[" + index.trimmed() + "]" + trailer + "/Length " +
         QByteArray::number(data.size()) + ">>\nstream\n" + data + "\nendstream";
}

QByteArray ObjectText(const PdfObject& object) {
  return QByteArray::number(object.number) + ' ' + QByteArray::number(object.generation) +
         " obj\n" + object.body + "\nendobj\n";
}

QByteArray Escaped(const QByteArray& bytes) {
  QByteArray text = "(";
  for (const char c : bytes) {
    if (c == '(' || c == ')' || c == '\\') text += '\\';
    if (c == '\r') {
      text += "\\r";
    } else if (c == '\n') {
      text += "\\n";
    } else {
      text += c;
    }
  }
  return text + ')';
}

}  // namespace

QByteArray PdfAddition(const std::vector<PdfObject>& objects, PdfEnd& end) {
  QByteArray bytes = QByteArray("\n") + kAdditionHead;
  std::vector<Entry> entries;
  for (const PdfObject& object : objects) {
    entries.push_back({object.number, object.generation, end.size + bytes.size()});
    bytes += ObjectText(object);
    end.nextObject = std::max(end.nextObject, object.number + 1);
  }
  const qint64 xref = end.size + bytes.size();
  int xrefNumber = 0;
  if (end.xrefStream) {
    xrefNumber = end.nextObject++;
    entries.push_back({xrefNumber, 0, xref});
  }
  std::sort(entries.begin(), entries.end(),
            [](const Entry& a, const Entry& b) { return a.number < b.number; });
  const QByteArray trailer = "/Size " + QByteArray::number(end.nextObject) + "/Prev " +
                             QByteArray::number(end.startXref) + end.trailer;
  bytes += end.xrefStream ? ObjectText({xrefNumber, 0, Stream(entries, trailer)})
                          : Table(entries, trailer);
  SealAddition(bytes, end.size, xref);
  end.size += bytes.size();
  end.startXref = xref;
  return bytes;
}

QByteArray PdfNumber(double value) {
  if (!std::isfinite(value)) return "0";
  QByteArray text = QByteArray::number(value, 'f', 4);
  while (text.endsWith('0')) text.chop(1);
  if (text.endsWith('.')) text.chop(1);
  return text == "-0" ? QByteArray("0") : text;
}

QByteArray PdfText(const QString& text) {
  const bool plain = std::all_of(text.begin(), text.end(),
                                 [](QChar c) { return c.unicode() >= 32 && c.unicode() < 127; });
  if (plain) return Escaped(text.toLatin1());
  QByteArray bytes = "\xfe\xff";
  for (const QChar c : text) {
    bytes += static_cast<char>(c.unicode() >> 8);
    bytes += static_cast<char>(c.unicode() & 0xff);
  }
  return Escaped(bytes);
}

QByteArray PdfLetters(const QString& text) {
  QByteArray bytes;
  for (const QChar c : text) {
    const ushort code = c.unicode();
    const bool known = (code >= 32 && code < 127) || (code >= 160 && code < 256);
    bytes += known ? static_cast<char>(code) : '?';
  }
  return Escaped(bytes);
}

}  // namespace tamo
