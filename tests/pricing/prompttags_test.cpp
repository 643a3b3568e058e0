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
  const char* block;  // with "was" standing
};

TEST(RatioTags, Table) {
  const TagCase cases[] = {
      {"SF", "SHT", "How many SF per SHT", "upo", "upo"},
      {"SF", "SHT", "How many SHT(s) per SF", "upo", "opu"},
      {"SF", "SHT", "SF per SHT:", "upo", "was"},
      {"SF", "SHT", "SHT(s) per SF:", "opu", "was"},
      {"SF", "SHT", "SHT(s) per SF", "opu", "opu"},
      {"SF", "EA", "How many per SF:", "upo", "was"},
      {"SF", "SHT", "How many", "opu", "was"},  // eight characters are not longer than eight
      {"SF", "SHT", "something", "opu", "was"},
      {"S", "SHT", "SHT(s) per S", "upo", "opu"},
      {"LFT", "FT", "FT(s) per LFT", "opu", "upo"},  // ends in both: the first wins
  };
  for (const TagCase& c : cases) {
    Prompts prompts;
    prompts.labelUPO = c.label;
    const PromptNames names = With(c.units, c.orderUnits);
    EXPECT_TEXT(RatioTagOfNewBlock(prompts, names), c.newBlock) << c.label;
    EXPECT_TEXT(RatioTagOfBlock(prompts, names, "was"), c.block) << c.label;
  }
}

TEST(RatioTags, APlaceThatWasInsertedHasNoTagToKeep) {
  Prompts prompts;
  prompts.labelUPO = "SHT(s) per SF:";
  EXPECT_TEXT(RatioTagOfBlock(prompts, With("SF", "SHT"), QString()), "opu");
}

TEST(RatioTags, AToggleAlwaysHasADirectionToTurnFrom) {
  const auto turned = [](const char* label) {
    Prompts prompts;
    prompts.labelUPO = label;
    return RatioTagToTurn(prompts, With("SF", "EA"));
  };
  EXPECT_TEXT(turned("How many SF per EA"), "upo");
  EXPECT_TEXT(turned("How many EA(s) per SF"), "opu");
  EXPECT_TEXT(turned("EA(s) per SF:"), "opu");
  EXPECT_TEXT(turned("How many per SF:"), "opu");  // as a finished material would be stored
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

}  // namespace
}  // namespace tamo
