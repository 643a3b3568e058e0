#include "plans/lengthtext.h"

#include <gtest/gtest.h>

namespace tamo::test {
namespace {

TEST(LengthTexts, EveryCommonForm) {
  const std::pair<const char*, double> forms[] = {{"58'-5\"", 58 + 5 / 12.0},
                                                  {"58' 5\"", 58 + 5 / 12.0},
                                                  {"58'5\"", 58 + 5 / 12.0},
                                                  {"58' - 5 1/2\"", 58 + 5.5 / 12},
                                                  {"58'-5-1/2\"", 58 + 5.5 / 12},
                                                  {"7'-0 3/4\"", 7 + .75 / 12},
                                                  {"58'", 58},
                                                  {"58.5'", 58.5},
                                                  {"5\"", 5 / 12.0},
                                                  {"5 1/2\"", 5.5 / 12},
                                                  {"1/2\"", .5 / 12},
                                                  {"58 5/8", 58.625},
                                                  {"5/8", .625},
                                                  {"12.5", 12.5},
                                                  {".5", .5},
                                                  {"20", 20},
                                                  {" 20 ", 20},
                                                  {"12 ft 6 in", 12.5},
                                                  {"12 ft. 6 in.", 12.5},
                                                  {"12 feet", 12},
                                                  {"6 in", .5},
                                                  {"3.2 m", 3.2 / .3048},
                                                  {"320 cm", 3.2 / .3048},
                                                  {"3200mm", 3.2 / .3048},
                                                  {"3,200 mm", 3.2 / .3048},
                                                  {"1,250", 1250},
                                                  {"58\u2032-5\u2033", 58 + 5 / 12.0},
                                                  {"58\u2019\u20135\u201d", 58 + 5 / 12.0},
                                                  {"58'-5''", 58 + 5 / 12.0},
                                                  {"5\u00bd\"", 5.5 / 12},
                                                  {"58'-5 \u00be\"", 58 + 5.75 / 12}};
  for (const auto& [text, feet] : forms) {
    const std::optional<double> read = FeetOf(QString::fromUtf8(text));
    ASSERT_TRUE(read.has_value()) << text;
    EXPECT_NEAR(*read, feet, 1e-9) << text;
  }
}

TEST(LengthTexts, WhatIsNoLengthGivesNone) {
  for (const char* text :
       {"",        " ",           "0",           "0'-0\"", "-5",  "x",   "5x", "5/0",
        "5 1/0\"", "1,50",        "12,5",        "5'6'7",  "'",   "\"",  "m",  "5 km",
        "1e3",     "58'-5\" x 3", "99999999999", "1.2.3",  "5 6", "nan", "inf"})
    EXPECT_FALSE(FeetOf(QString::fromUtf8(text)).has_value()) << text;
  EXPECT_FALSE(FeetOf(QString(100000, QLatin1Char('1'))).has_value());
}

TEST(LengthTexts, InWordsToTheSixteenth) {
  EXPECT_EQ(FeetInWords(58 + 5.5 / 12), "58'-5 1/2\"");
  EXPECT_EQ(FeetInWords(20), "20'-0\"");
  EXPECT_EQ(FeetInWords(7.99999), "8'-0\"");
  EXPECT_EQ(FeetInWords(1 / 24.0), "0'-0 1/2\"");
  EXPECT_EQ(FeetInWords(3.2 / .3048), "10'-6\"");
}

}  // namespace
}  // namespace tamo::test
