#pragma once

#include <QByteArray>
#include <vector>

namespace tamo {

// The parts of a PDF's object as they stand in the file, to be repeated byte for byte.

struct PdfEntry {
  QByteArray key;    // with its stroke, as it is written
  QByteArray value;  // as it is written
  QByteArray whole;  // both, and what stands between them
};

// The entries of the dictionary that `text` begins with, blanks and comments before it aside; none
// when there is no whole one.
std::vector<PdfEntry> EntriesOf(const QByteArray& text);
// The elements of the array that `text` begins with; false when there is no whole one.
bool ElementsOf(const QByteArray& text, std::vector<QByteArray>& elements);
// The number of the object that `text` refers to ("12 0 R"); 0 when it is no reference.
int ReferenceIn(const QByteArray& text);
// Whether `text` may hold strings.
bool MayHoldStrings(QByteArray text);
// What follows "NUMBER GENERATION obj" at the beginning of `text`; empty when that is not there.
QByteArray BehindObjectHead(const QByteArray& text, int number);

}  // namespace tamo
