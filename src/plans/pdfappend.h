#pragma once

#include <QByteArray>
#include <vector>

namespace tamo {

// Written here and not by the engine: its save of changes reads and renumbers what it did not
// change, while one mark on a set of 60 MB has to cost what the bare append does (the benchmarks
// SaveOneMark and BareAppend).

// One object of a PDF, new or replacing one of that number.
struct PdfObject {
  int number = 0;
  int generation = 0;
  QByteArray body;  // what stands between "obj" and "endobj"
};

// What an addition to a PDF has to know of the file it is appended to.
struct PdfEnd {
  qint64 size = 0;          // bytes of the file, the place where the addition begins
  qint64 startXref = 0;     // the place of its last cross-reference part
  bool xrefStream = false;  // whether that part is a stream; the next one must be of the same kind
  int nextObject = 1;       // the first free object number
  QByteArray trailer;       // the entries that every trailer repeats: Root, Info, ID, Encrypt
};

// The bytes to append so that `objects` become part of the file. `end` then describes the file with
// the addition.
QByteArray PdfAddition(const std::vector<PdfObject>& objects, PdfEnd& end);

// A number as a PDF writes it: at most four decimals, no exponent.
QByteArray PdfNumber(double value);
// A text string: in brackets, escaped; as UTF-16 when it is not plain ASCII.
QByteArray PdfText(const QString& text);
// A string of the page's own one-byte letters (Windows-1252); others become a question mark.
QByteArray PdfLetters(const QString& text);

}  // namespace tamo
