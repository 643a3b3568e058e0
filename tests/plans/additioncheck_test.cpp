#include <gtest/gtest.h>

#include "plans/additioncheck.h"
#include "plans/filetail.h"
#include "plans/pdfappend.h"

// What is appended to a plan is looked at before: it touches nothing but itself.

using namespace tamo;

namespace {

constexpr qint64 kSize = 5000;

PdfEnd End(bool stream) {
  PdfEnd end;
  end.size = kSize;
  end.startXref = 4000;
  end.xrefStream = stream;
  end.nextObject = 20;
  end.trailer = "/Root 1 0 R/ID[(a)(b)]";
  return end;
}

QByteArray Addition(bool stream) {
  PdfEnd end = End(stream);
  return PdfAddition({{7, 3, "<</Type/Page>>"}, {20, 0, "<</NM(a\nendobj\n)>>"}, {21, 0, "[]"}},
                     end);
}

// The addition with `from` made `into`, sealed again as a liar would.
QByteArray Lied(QByteArray bytes, const QByteArray& from, const QByteArray& into) {
  const qsizetype at = bytes.lastIndexOf("startxref\n") + 10;
  const qint64 xref = bytes.mid(at).split('\n')[0].toLongLong();
  EXPECT_TRUE(bytes.contains(from));
  bytes.truncate(bytes.lastIndexOf(kAdditionSum));
  bytes.replace(from, into);
  SealAddition(bytes, kSize, xref);
  return bytes;
}

}  // namespace

TEST(AdditionCheck, WhatASaveWritesIsRight) {
  for (const bool stream : {false, true}) {
    EXPECT_TRUE(IsAddition(Addition(stream), kSize));
    EXPECT_FALSE(IsAddition(Addition(stream), kSize + 1));
  }
}

TEST(AdditionCheck, AChangedOrCutOneIsNot) {
  for (const bool stream : {false, true}) {
    const QByteArray whole = Addition(stream);
    for (qsizetype i = 0; i < whole.size(); ++i) {
      EXPECT_FALSE(IsAddition(whole.left(i), kSize)) << i;
      QByteArray changed = whole;
      changed[i] = static_cast<char>(changed[i] ^ 1);
      EXPECT_FALSE(IsAddition(changed, kSize)) << i;
    }
  }
}

TEST(AdditionCheck, ASealedLieIsNot) {
  const QByteArray table = Addition(false);
  EXPECT_TRUE(IsAddition(Lied(table, "/NM", "/MN"), kSize));  // what objects hold is theirs
  EXPECT_FALSE(IsAddition(Lied(table, "\n7 3 obj", "\n8 3 obj"), kSize));
  EXPECT_FALSE(IsAddition(Lied(table, " 00003 n", " 00002 n"), kSize));
  EXPECT_FALSE(IsAddition(Lied(table, "0000005012", "0000000012"), kSize));
  EXPECT_FALSE(IsAddition(Lied(table, "0000005012", "9999999999"), kSize));
  EXPECT_FALSE(IsAddition(Lied(table, "/Prev 4000", "/Prev 5500"), kSize));
  EXPECT_FALSE(IsAddition(Lied(table, "/Prev 4000", "/Vrep 4000"), kSize));
  EXPECT_FALSE(IsAddition(Lied(table, "20 2\n", "20 9\n"), kSize));
  const QByteArray stream = Addition(true);
  EXPECT_FALSE(IsAddition(Lied(stream, "/Index[7 1", "/Index[8 1"), kSize));
  EXPECT_FALSE(IsAddition(Lied(stream, "/W[1 6 2]", "/W[1 5 3]"), kSize));
  EXPECT_FALSE(IsAddition(Lied(stream, "20 3]", "20 999999]"), kSize));
}
