#include "pricing/directions.h"

#include <gtest/gtest.h>

namespace tamo {
namespace {

const PromptNames kBoard{"SF", "SHT", "Wall", "Board"};
const PromptNames kClip{"SF", "EA", "Panel", "Clip"};

Prompts Asking(const char* ratio, const char* labor = "SF per Manhour:") {
  Prompts prompts;
  prompts.labelUPO = ratio;
  prompts.labelMnhr = labor;
  return prompts;
}

MaterialBlock Stored(const char* orderUnits, const char* ratio, const char* labor) {
  MaterialBlock block;
  block.orderUnits = orderUnits;
  block.upoTag = ratio;
  block.mnhrTag = labor;
  return block;
}

TEST(Directions, AMaterialThatIsTypedNewIsStoredAsItsPromptBegins) {
  const Directions none;
  EXPECT_EQ(none.Ratio(), "");
  EXPECT_EQ(none.RatioToStore(Asking("How many SF per SHT"), kBoard, {}, true), "upo");
  EXPECT_EQ(none.RatioToStore(Asking("SHT(s) per SF:"), kBoard, {}, true), "opu");
  EXPECT_EQ(none.LaborToStore(Asking("", "SF per Manhour:"), kBoard, {}), "upm");
  EXPECT_EQ(none.LaborToStore(Asking("", "Manhours per SF:"), kBoard, {}), "mpu");
  EXPECT_EQ(none.LaborToStore(Asking("", "How many per manhour"), kBoard, {}), "upm");
}

TEST(Directions, ABlockWithoutADirectionIsStoredAsItsPromptEnds) {
  const PromptNames feet{"LFT", "FT", "Rail", "Tube"};
  const Directions none;
  EXPECT_EQ(none.RatioToStore(Asking("How many LFT per FT"), feet, QString(), true), "upo");
  EXPECT_EQ(none.RatioToStore(Asking("How many FT(s) per LFT"), feet, QString(), true), "upo");
  EXPECT_EQ(none.RatioToStore(Asking("SHT(s) per SF"), kBoard, QString(), true), "opu");
  EXPECT_EQ(none.RatioToStore(Asking("SF per SHT:"), kBoard, QString("was"), true), "was");
  EXPECT_EQ(none.LaborToStore(Asking("", "How many per manhour"), kBoard, QString()), "mpu");
}

TEST(Directions, HowManyPerTakeoffUnitIsAnsweredInOrderUnits) {
  Directions directions;
  const Prompts asked = Asking("How many per SF:");
  EXPECT_EQ(directions.RatioToStore(asked, kClip, {}, true), "opu");
  EXPECT_EQ(directions.RatioToStore(asked, kClip, QString(), true), "opu");
  // Bought by the sheet before: once it stands there, whatever was in force.
  directions.TakeRatio("upo", "SHT");
  EXPECT_EQ(directions.RatioToStore(asked, kClip, QString("upo"), false), "opu");
  EXPECT_EQ(directions.RatioToStore(Asking("How many SF per EA"), kClip, QString("upo"), true),
            "upo");
}

TEST(Directions, WalkingThroughANumberNeverTurnsIt) {
  Directions directions;
  const Prompts asked = Asking("How many per SF:");
  directions.TakeRatio("upo", "EA");
  EXPECT_EQ(directions.RatioToStore(asked, kClip, QString("upo"), false), "upo");
  EXPECT_EQ(directions.RatioToStore(asked, kClip, {}, false), "upo");  // from the library
  EXPECT_EQ(directions.RatioToStore(asked, kClip, QString("upo"), true), "opu");
}

TEST(Directions, WhatIsInForceIsStored) {
  Directions directions;
  directions.TakeBlock(Stored("SHT", "opu", "mpu"));
  EXPECT_EQ(directions.RatioToStore(Asking("SF per SHT"), kBoard, QString("opu"), true), "opu");
  EXPECT_EQ(directions.LaborToStore(Asking("", "SF per Manhour:"), kBoard, QString("mpu")), "mpu");
  directions.Forget();
  EXPECT_EQ(directions.Ratio(), "");
  EXPECT_EQ(directions.Labor(), "");
}

TEST(Directions, ATagThatIsNoneGivesNoDirection) {
  Directions directions;
  directions.TakeBlock(Stored("SHT", "both", "UPM"));
  EXPECT_EQ(directions.Ratio(), "");
  EXPECT_EQ(directions.Labor(), "");
  EXPECT_FALSE(directions.CameFor("SHT"));
}

TEST(Directions, ANumberCameForItsOrderUnit) {
  Directions directions;
  EXPECT_FALSE(directions.CameFor("EA"));
  directions.TakeBlock(Stored("EA", "upo", "upm"));
  EXPECT_TRUE(directions.CameFor("EA"));
  EXPECT_TRUE(directions.CameFor("ea"));
  EXPECT_FALSE(directions.CameFor("CT"));
  directions.Forget();
  EXPECT_FALSE(directions.CameFor("EA"));
}

TEST(Directions, AToggleTurnsOnceAndBack) {
  Directions directions;
  directions.TurnRatio(Asking("How many SF per SHT"), kBoard);
  EXPECT_EQ(directions.Ratio(), "opu");
  directions.TurnRatio(Asking("How many SHT(s) per SF Wall"), kBoard);
  EXPECT_EQ(directions.Ratio(), "upo");
  directions.TurnLabor(Asking(""), kBoard, {});
  EXPECT_EQ(directions.Labor(), "mpu");
  directions.TurnLabor(Asking("", "Manhours per SF:"), kBoard, {});
  EXPECT_EQ(directions.Labor(), "upm");
}

TEST(Directions, AToggleTurnsAwayFromWhatIsRead) {
  Directions counted;
  counted.TurnRatio(Asking("How many per SF:"), kClip);
  EXPECT_EQ(counted.Ratio(), "upo");
  Directions metres;
  metres.TurnLabor(Asking("", "Manhours per M of Cable:"), {"M", "BOX", "Cable", "Tape"}, {});
  EXPECT_EQ(metres.Labor(), "upm");
}

TEST(Directions, ATagInCapitalsTurnsToo) {
  Directions directions;
  directions.TakeBlock(Stored("SHT", "upo", "UPM"));
  directions.TurnLabor(Asking("", "Manhours per SF:"), kBoard, QString("UPM"));
  EXPECT_EQ(directions.Labor(), "mpu");
}

}  // namespace
}  // namespace tamo
