#include "plans/mark.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tamo::test {
namespace {

double Light(double part) {
  return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double ContrastWithWhite(unsigned code) {
  const auto part = [code](int shift) { return Light((code >> shift & 255) / 255.0); };
  return 1.05 / (0.2126 * part(16) + 0.7152 * part(8) + 0.0722 * part(0) + 0.05);
}

TEST(ReadableOnWhite, EveryColourOfTheProgramCanBeRead) {
  for (const char* code : {"255255000", "000255255", "000255000", "150200255", "200255200",
                           "255155000", "255000000", "000000255", "255255255", "000000000"}) {
    const unsigned readable = ReadableOnWhite(ColourNumber(QLatin1String(code)));
    EXPECT_GE(ContrastWithWhite(readable), 4.5) << code;
  }
}

TEST(ReadableOnWhite, WhatCanBeReadStaysAsItIs) {
  for (const char* code : {"000000175", "185000000", "139069013", "000000000"}) {
    const unsigned colour = ColourNumber(QLatin1String(code));
    EXPECT_EQ(ReadableOnWhite(colour), colour) << code;
  }
}

TEST(MarkBounds, WhatAFileSaysIsBroughtToWhatAMarkCanBe) {
  Mark mark;
  for (const double width : {0.0, -1.0, 1e30, std::nan(""), HUGE_VAL}) {
    mark.width = width;
    BringToBounds(mark);
    EXPECT_EQ(mark.width, 0.75) << width;
  }
  mark.width = 2.25;
  mark.label = QString(1000000, 'x');
  mark.title = QString(1000000, 'x');
  mark.kept = QString(1000000, 'x');
  BringToBounds(mark);
  EXPECT_EQ(mark.width, 2.25);
  EXPECT_EQ(mark.label.size(), kLongestMarkLabel);
  EXPECT_EQ(mark.title.size(), kLongestTitle);
  EXPECT_EQ(mark.kept, "");
}

TEST(MarkBounds, NoNumberIsWithoutEnd) {
  Mark mark;
  for (const char* label : {"nan feet", "inf feet", "-inf sq ft", "1e999 feet"}) {
    mark.label = label;
    EXPECT_EQ(ValueOfMark(mark), 0) << label;
  }
  EXPECT_EQ(MarkNumber("tamo-999999999-00000001"), 999999999);
  EXPECT_EQ(MarkNumber("tamo-2147483647-00000001"), 0) << "no mark can be drawn after it";
}

}  // namespace
}  // namespace tamo::test
