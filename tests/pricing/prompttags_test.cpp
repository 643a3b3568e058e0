#include "pricing/prompts.h"

#include <gtest/gtest.h>

// The wording around the two conversion numbers, and the directions read off it.

namespace tamo {
namespace {

// D "Wall", M "Board" everywhere.
PromptNames With(const char* units, const char* orderUnits) {
  return {units, orderUnits, "Wall", "Board"};
}

#define EXPECT_TEXT(actual, expected) EXPECT_EQ((actual).toStdString(), std::string(expected))

struct TagCase {
  const char* units;
  const char* orderUnits;
  const char* label;
  const char* newBlock;
};

TEST(RatioTags, Table) {
  const TagCase cases[] = {
      {"SF", "SHT", "How many SF per SHT", "upo"},
      {"SF", "SHT", "How many SHT(s) per SF", "upo"},
      {"SF", "SHT", "SF per SHT:", "upo"},
      {"SF", "SHT", "SHT(s) per SF:", "opu"},
      {"SF", "SHT", "SHT(s) per SF", "opu"},
      {"SF", "EA", "How many per SF:", "upo"},
      {"SF", "SHT", "How many", "opu"},  // eight characters are not longer than eight
      {"SF", "SHT", "something", "opu"},
      {"S", "SHT", "SHT(s) per S", "upo"},
      {"LFT", "FT", "FT(s) per LFT", "opu"},
  };
  for (const TagCase& c : cases) {
    Prompts prompts;
    prompts.labelUPO = c.label;
    const PromptNames names = With(c.units, c.orderUnits);
    EXPECT_TEXT(RatioTagOfNewBlock(prompts, names), c.newBlock) << c.label;
  }
}

TEST(LaborTags, Table) {
  struct Case {
    const char *units, *label, *newBlock, *block;
  };
  const Case cases[] = {
      {"SF", "SF per Manhour:", "upm", "upm"},
      {"EA", "How many per Manhour:", "upm", "upm"},
      {"SF", "Manhours per SF:", "mpu", "mpu"},
      {"SF", "Manhours per SF of Wall:", "mpu", "mpu"},
      {"SF", "How many per manhour", "upm", "mpu"},
      {"SF", "something", "", "mpu"},
      // "Manhours per" is no unit that begins with M, and no system's name is a rate.
      {"M", "Manhours per M:", "mpu", "mpu"},
      {"M", "M per Manhour:", "upm", "upm"},
      {"Manhour", "Manhours per Manhour:", "mpu", "mpu"},
  };
  for (const Case& c : cases) {
    Prompts prompts;
    prompts.labelMnhr = c.label;
    EXPECT_TEXT(LaborTagOfNewBlock(prompts, With(c.units, "SHT")), c.newBlock) << c.label;
    EXPECT_TEXT(LaborTagOfBlock(prompts), c.block) << c.label;
  }
}

TEST(WhatIsRead, TheDirectionThatTheWordsTell) {
  const auto ratio = [](const char* label, const char* orderUnits = "SHT") {
    Prompts prompts;
    prompts.labelUPO = label;
    return prompts.RatioRead(With("SF", orderUnits));
  };
  EXPECT_TEXT(ratio("SF per SHT"), "upo");
  EXPECT_TEXT(ratio("How many SF per SHT"), "upo");
  EXPECT_TEXT(ratio("How many per SHT:"), "upo");
  EXPECT_TEXT(ratio("How many Wall per SHT:"), "upo");
  EXPECT_TEXT(ratio("SHT(s) per SF:"), "opu");
  EXPECT_TEXT(ratio("How many SHT(s) per SF Wall:"), "opu");
  EXPECT_TEXT(ratio("How many per SF:", "EA"), "opu");
  EXPECT_TEXT(ratio("How many per SF", "EA"), "opu");
  const auto labor = [](const char* label) {
    Prompts prompts;
    prompts.labelMnhr = label;
    return prompts.LaborRead();
  };
  EXPECT_TEXT(labor("SF per Manhour:"), "upm");
  EXPECT_TEXT(labor("M per Manhour:"), "upm");
  EXPECT_TEXT(labor("How many per Manhour:"), "upm");
  EXPECT_TEXT(labor("How many per manhour"), "upm");
  EXPECT_TEXT(labor("Manhours per M:"), "mpu");
}

}  // namespace
}  // namespace tamo
