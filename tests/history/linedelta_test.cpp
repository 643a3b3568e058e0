#include "history/linedelta.h"

#include <gtest/gtest.h>

#include <random>

namespace tamo::test {
namespace {

QByteArray Back(const QByteArray& before, const QByteArray& delta) {
  QByteArray after;
  EXPECT_TRUE(ApplyLineDelta(before, delta, after)) << delta.constData();
  return after;
}

TEST(LineDelta, AChangedLineIsOneLine) {
  const QByteArray before = "9\r\nDrywall 792 SF\r\nCarpet 40 SY\r\n";
  const QByteArray after = "9\r\nDrywall 892 SF\r\nCarpet 40 SY\r\n";
  const QByteArray delta = LineDelta(before, after);
  EXPECT_EQ(delta, "=1-1\n\tDrywall 892 SF\r\n=3-3\n");
  EXPECT_EQ(Back(before, delta), after);
}

TEST(LineDelta, AMovedLineIsNotWrittenAgain) {
  QByteArray before;
  for (int i = 0; i < 200; ++i) before += "System number " + QByteArray::number(i) + "\r\n";
  const QByteArray last = "System number 150\r\n";
  QByteArray after = before;
  after.replace(last, "").prepend(last);
  const QByteArray delta = LineDelta(before, after);
  EXPECT_EQ(delta, "=151-151\n=1-150\n=152-200\n");
  EXPECT_EQ(Back(before, delta), after);
}

TEST(LineDelta, EveryByteIsKept) {
  const QByteArray odd[] = {"",
                            "\n",
                            "\r\n\r\n",
                            "no end",
                            "a\n\nb",
                            "\t=1-2\n@ head\n~",
                            QByteArray("nul\0in\n", 7),
                            "\xff\xfe\r",
                            "=1-1\n=1-1"};
  for (const QByteArray& before : odd) {
    for (const QByteArray& after : odd) EXPECT_EQ(Back(before, LineDelta(before, after)), after);
  }
}

TEST(LineDelta, RandomTextsComeBack) {
  std::mt19937 random(7);
  const auto text = [&] {
    QByteArray lines;
    for (auto n = random() % 30; n > 0; --n) {
      lines += QByteArray("line of ") + QByteArray::number(static_cast<uint>(random() % 12));
      if (n > 1 || random() % 4 != 0) lines += random() % 5 == 0 ? "\n" : "\r\n";
    }
    return lines;
  };
  for (int i = 0; i < 3000; ++i) {
    const QByteArray before = text();
    const QByteArray after = text();
    ASSERT_EQ(Back(before, LineDelta(before, after)), after);
  }
}

TEST(LineDelta, WhatIsNoDeltaIsRefused) {
  QByteArray after;
  for (const QByteArray wrong :
       {"=1-3\n", "=0-1\n", "=2-1\n", "=x-1\n", "=1\n", "hello\n", "~half"})
    EXPECT_FALSE(ApplyLineDelta("one\ntwo\n", wrong, after)) << wrong.constData();
}

}  // namespace
}  // namespace tamo::test
