#include "program/hometexts.h"

#include <gtest/gtest.h>

namespace tamo {
namespace {

QString S(const char* text) {
  return QString::fromUtf8(text);
}

TEST(HomeTexts, BidDatesAsPeopleTypeThem) {
  const QDate day(2026, 12, 24);
  for (const char* typed : {"12/24/2026", "12/24/26", "2026-12-24", "24.12.2026",
                            "December 24, 2026", "Dec 24, 2026", " 12/24/2026 ", "12-24-2026"})
    EXPECT_EQ(BidDay(S(typed)), day) << typed;
  for (const char* typed : {"", "soon", "13/45/2026", "2:00 PM", "12/24"})
    EXPECT_FALSE(BidDay(S(typed)).isValid()) << typed;
}

TEST(HomeTexts, DaysLeft) {
  const QDate today(2026, 11, 22);
  EXPECT_EQ(BidDateText(S("12/24/2026"), today), S("12/24/2026, 32 days left"));
  EXPECT_EQ(BidDateText(S("11/23/2026"), today), S("11/23/2026, 1 day left"));
  EXPECT_EQ(BidDateText(S("11/22/2026"), today), S("11/22/2026, today"));
  EXPECT_EQ(BidDateText(S("11/21/2026"), today), S("11/21/2026, yesterday"));
  EXPECT_EQ(BidDateText(S("11/1/2026"), today), S("11/1/2026, 21 days ago"));
  EXPECT_EQ(BidDateText(S("next week"), today), S("next week"));
  EXPECT_EQ(BidDateText(S("  "), today), S("not set"));
}

TEST(HomeTexts, Dollars) {
  EXPECT_EQ(DollarText(0), S("$ 0"));
  EXPECT_EQ(DollarText(999), S("$ 999"));
  EXPECT_EQ(DollarText(35121), S("$ 35,121"));
  EXPECT_EQ(DollarText(35121.5), S("$ 35,121.50"));
  EXPECT_EQ(DollarText(-1250), S("$ -1,250"));
  EXPECT_EQ(DollarText(1234567), S("$ 1,234,567"));
}

TEST(HomeTexts, OfABid) {
  BidOverview state;
  state.rooms = 2;
  state.roomLines = 1;
  state.unpriced = {S("A"), S("B"), S("C"), S("D")};
  state.items = 1;
  state.itemPrices = 1850;
  state.total = 35121;
  state.manhours = 12;
  const HomeTexts texts = TextsOf(state);
  EXPECT_EQ(texts.rooms, S("2, 1 line"));
  EXPECT_EQ(texts.areas, S("0, 0 lines"));
  EXPECT_EQ(texts.unpriced, S("4 (A, B, C ...)"));
  EXPECT_EQ(texts.items, S("1, $ 1,850"));
  EXPECT_EQ(texts.adjustment, S("none"));
  EXPECT_EQ(texts.emptyLines, S("none"));
  EXPECT_EQ(texts.total, S("$ 35,121"));
  EXPECT_EQ(texts.hours, S("12"));
  state.failure = S("Why.");
  EXPECT_EQ(TextsOf(state).total, S("can't be made"));
  EXPECT_EQ(TextsOf(state).uncounted, S("Why."));
}

}  // namespace
}  // namespace tamo
