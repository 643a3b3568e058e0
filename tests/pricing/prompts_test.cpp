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

TEST(CountUnits, TheShortTestKnowsEaAndCt) {
  for (const char* unit : {"EA", "ea", "Ct", "CT"}) EXPECT_TRUE(IsCountUnit(unit)) << unit;
  for (const char* unit : {"EACH", "COUNT", "SF", "", "EA "}) EXPECT_FALSE(IsCountUnit(unit));
}

TEST(CountUnits, TheLongTestKnowsEachAndCountAsWell) {
  for (const char* unit : {"EA", "ct", "each", "Count"}) EXPECT_TRUE(IsCountUnitLong(unit));
  for (const char* unit : {"SF", "", "EACHS"}) EXPECT_FALSE(IsCountUnitLong(unit));
}

struct UnitsCase {
  const char* units;
  const char* labelUPO;
  const char* labelMnhr;
  const char* label5;
  const char* label8;
};

TEST(AfterUnits, Table) {
  const UnitsCase cases[] = {
      {"SF", "SF per SHT", "SF per Manhour:", "Leave blank and press Enter to use SHT per SF",
       "Leave blank and press Enter to use manhours perSF:"},
      {"EA", "How many per SHT",
       "How many per Manhour:", "Leave blank and press Enter to use SHT per EA",
       "Leave blank and press Enter to use manhours perEA:"},
      {"ea", "How many per SHT",
       "How many per Manhour:", "Leave blank and press Enter to use SHT per ea",
       "Leave blank and press Enter to use manhours perea:"},
      {"CT", "How many per SHT",
       "How many per Manhour:", "Leave blank and press Enter to use SHT per CT",
       "Leave blank and press Enter to use manhours perCT:"},
      // EACH is no count unit here: the short test.
      {"EACH", "EACH per SHT",
       "EACH per Manhour:", "Leave blank and press Enter to use SHT per EACH",
       "Leave blank and press Enter to use manhours perEACH:"},
  };
  for (const UnitsCase& c : cases) {
    Prompts prompts;
    prompts.AfterUnits(With(c.units, "SHT"));
    EXPECT_TEXT(prompts.labelUPO, c.labelUPO);
    EXPECT_TEXT(prompts.labelMnhr, c.labelMnhr);
    EXPECT_TEXT(prompts.label5, c.label5);
    EXPECT_TEXT(prompts.label8, c.label8);
  }
}

TEST(AtMaterial, HintsOfBothNumbers) {
  Prompts prompts;
  prompts.AtMaterial(With("SF", "SHT"));
  EXPECT_TEXT(prompts.label5, "Leave blank and press Enter to use SHT(s) per SF");
  EXPECT_TEXT(prompts.label8, "Leave blank and press Enter to use Manhours per SF");
}

TEST(AtPrice, CountedOrderUnitsAskHowMany) {
  for (const char* orderUnits : {"EA", "CT", "EACH", "COUNT", "each"}) {
    Prompts prompts;
    prompts.AtPrice(With("SF", orderUnits));
    EXPECT_TEXT(prompts.labelUPO, "How many per SF:");
    EXPECT_EQ(prompts.label5,
              QStringLiteral("Leave blank and press Enter to use SF per ") + orderUnits);
  }
  Prompts prompts;
  prompts.labelUPO = "as it was";
  prompts.AtPrice(With("SF", "SHT"));
  EXPECT_TEXT(prompts.labelPrice, "Cost per SHT:");
  EXPECT_TEXT(prompts.labelUPO, "as it was");
}

struct FileTagCase {
  const char* units;
  const char* orderUnits;
  const char* ratio;
  const char* labor;
  const char* labelUPO;
  const char* labelMnhr;
};

TEST(AfterFileTags, Table) {
  const FileTagCase cases[] = {
      {"SF", "SHT", "upo", "upm", "SF per SHT:", "SF per Manhour:"},
      {"SF", "SHT", "opu", "mpu", "SHT(s) per SF:", "Manhours per SF:"},
      {"EA", "SHT", "upo", "upm", "How many per SHT:", "How many per Manhour:"},
      {"EACH", "SHT", "upo", "upm", "How many per SHT:", "EACH per Manhour:"},
      {"SF", "EACH", "opu", "mpu", "How many per SF:", "Manhours per SF:"},
      {"EA", "BX", "opu", "mpu", "BX(s) per EA:", "Manhours per EA:"},
      {"SF", "SHT", "", "38", "before", "before"},
  };
  for (const FileTagCase& c : cases) {
    Prompts prompts;
    prompts.labelUPO = prompts.labelMnhr = "before";
    prompts.AfterFileRatioTag(With(c.units, c.orderUnits), c.ratio);
    prompts.AfterFileLaborTag(With(c.units, c.orderUnits), c.labor);
    EXPECT_TEXT(prompts.labelUPO, c.labelUPO);
    EXPECT_TEXT(prompts.labelMnhr, c.labelMnhr);
  }
}

TEST(ShowBlock, RatioTable) {
  struct Case {
    const char *units, *orderUnits, *tag, *labelUPO, *label5;
  };
  const Case cases[] = {
      {"SF", "SHT", "upo", "SF per SHT:", "Leave blank and press Enter to use SHT(s) per SF"},
      {"COUNT", "BX", "upo",
       "How many per BX:", "Leave blank and press Enter to use BX(s) per COUNT"},
      {"SF", "SHT", "opu", "SHT(s) per SF:", "Leave blank and press Enter to use SF per SHT"},
      {"EA", "BX", "opu", "BX(s) per EA:", "Leave blank and press Enter to use How many per BX"},
      {"SF", "EA", "opu", "How many per SF", "Leave blank and press Enter to use SF per EA"},
      {"SF", "SHT", "", "before", "before"},
  };
  for (const Case& c : cases) {
    Prompts prompts;
    prompts.labelUPO = prompts.label5 = "before";
    prompts.ShowRatio(With(c.units, c.orderUnits), c.tag);
    EXPECT_TEXT(prompts.labelUPO, c.labelUPO);
    EXPECT_TEXT(prompts.label5, c.label5);
  }
}

TEST(ShowBlock, LaborTable) {
  struct Case {
    const char *units, *tag, *labelMnhr, *label8;
  };
  const Case cases[] = {
      {"SF", "mpu", "Manhours per SF:", "Leave blank and press Enter to use SF per Manhour"},
      {"EA", "mpu", "Manhours per EA:", "Leave blank and press Enter to use How many per Manhour"},
      {"EACH", "mpu", "Manhours per EACH:", "Leave blank and press Enter to use EACH per Manhour"},
      {"SF", "upm", "SF per Manhour:", "Leave blank and press Enter to use Manhours per SF"},
      {"CT", "upm", "How many per Manhour:", "Leave blank and press Enter to use Manhours per CT"},
      {"SF", "", "before", "before"},
  };
  for (const Case& c : cases) {
    Prompts prompts;
    prompts.labelMnhr = prompts.label8 = "before";
    prompts.ShowLabor(With(c.units, "SHT"), c.tag);
    EXPECT_TEXT(prompts.labelMnhr, c.labelMnhr);
    EXPECT_TEXT(prompts.label8, c.label8);
  }
}

struct SetCase {
  const char* units;
  const char* orderUnits;
  const char* ratioTag;
  const char* labelBefore;
  const char* labelUPO;
  const char* hoverUPO;
  const char* label5;
};

TEST(SetUpoUpm, RatioTable) {
  const SetCase cases[] = {
      // A direction is given: the end of the prompt counts for nothing.
      {"SF", "SHT", "upo", "SHT(s) per SF", "How many SF per SHT",
       "How many SF of Wall per SHT of Board", "Leave blank and press Enter to use SHT(s) per SF"},
      {"SF", "SHT", "opu", "SF per SHT", "How many SHT(s) per SF",
       "How many SHT(s) of Board per SF of Wall", "Leave blank and press Enter to use SF per SHT"},
      {"EA", "BX", "opu", "", "How many BX(s) per EA Wall:", "How many BX(s) of Board per EA Wall",
       "Leave blank and press Enter to use EA(s) per BX"},
      {"EACH", "BX", "opu", "",
       "How many BX(s) per EACH Wall:", "How many BX(s) of Board per EACH Wall",
       "Leave blank and press Enter to use EACH(s) per BX"},
      {"EA", "BX", "upo", "", "How many Wall per BX:", "How many Wall(s) per BX of Board",
       "Leave blank and press Enter to use BX(s) per EA"},
      {"COUNT", "BX", "upo", "", "How many Wall per BX:", "How many Wall(s) per BX of Board",
       "Leave blank and press Enter to use BX(s) per COUNT"},
      // No direction: the end of the prompt decides.
      {"SF", "SHT", "", "SF per SHT", "How many SF per SHT", "How many SF of Wall per SHT of Board",
       "Leave blank and press Enter to use SHT(s) per SF"},
      {"SF", "SHT", "", "", "How many SF per SHT", "How many SF of Wall per SHT of Board",
       "Leave blank and press Enter to use SHT(s) per SF"},
      {"SF", "SHT", "", "  ", "How many SF per SHT", "How many SF of Wall per SHT of Board",
       "Leave blank and press Enter to use SHT(s) per SF"},
      {"SF", "SHT", "", "SHT per Wall", "How many SHT(s) per SF",
       "How many SHT(s) of Board per SF of Wall", "Leave blank and press Enter to use SF per SHT"},
      {"SF", "SHT", "", "SHT(s) per SF", "SHT(s) per SF", "hover", "hint"},
      {"EA", "BX", "", "How many per BX", "How many EA per BX",
       "How many EA of Wall per BX of Board", "Leave blank and press Enter to use BX(s) per EA"},
      // LFT ends in FT: the order of the rules decides.
      {"LFT", "FT", "", "FT(s) per LFT", "How many LFT per FT",
       "How many LFT of Wall per FT of Board", "Leave blank and press Enter to use FT(s) per LFT"},
  };
  for (const SetCase& c : cases) {
    Prompts prompts;
    prompts.labelUPO = c.labelBefore;
    prompts.hoverUPO = "hover";
    prompts.label5 = "hint";
    prompts.SetUpoUpm(With(c.units, c.orderUnits), c.ratioTag, "");
    EXPECT_TEXT(prompts.labelUPO, c.labelUPO);
    EXPECT_TEXT(prompts.hoverUPO, c.hoverUPO);
    EXPECT_TEXT(prompts.label5, c.label5);
  }
}

TEST(SetUpoUpm, LaborTable) {
  struct Case {
    const char *units, *tag, *labelMnhr, *label8, *hover;
  };
  const Case cases[] = {
      {"SF", "mpu",
       "Manhours per SF of Wall:", "Leave blank and press Enter to use how many SF per Manhour",
       "How many manhours per SF of Wall"},
      {"EA", "mpu",
       "Manhours per EA of Wall:", "Leave blank and press Enter to use how many Wall per Manhour",
       "How many manhours per EA of Wall"},
      // The long test has no part in labor.
      {"EACH", "mpu",
       "Manhours per EACH of Wall:", "Leave blank and press Enter to use how many EACH per Manhour",
       "How many manhours per EACH of Wall"},
      {"SF", "upm", "SF per Manhour:", "Leave blank and press Enter to use Manhours per SF",
       "How many SF of Wall per manhour:"},
      {"CT", "upm", "How many per Manhour:", "Leave blank and press Enter to use Manhours per CT",
       "How many CT of Wall per manhour:"},
      {"EACH", "upm", "EACH per Manhour:", "Leave blank and press Enter to use Manhours per EACH",
       "How many EACH of Wall per manhour:"},
      {"SF", "", "How many per manhour", "hint", "hover"},
  };
  for (const Case& c : cases) {
    Prompts prompts;
    prompts.label8 = "hint";
    prompts.hoverMnhrPO = "hover";
    prompts.SetUpoUpm(With(c.units, "SHT"), "upo", c.tag);
    // A counted takeoff unit with "upo" words the labor prompt, too; none of these is one by the
    // long test but EA, CT and EACH, whose labor tag overwrites it.
    EXPECT_TEXT(prompts.labelMnhr, c.labelMnhr);
    EXPECT_TEXT(prompts.label8, c.label8);
    EXPECT_TEXT(prompts.hoverMnhrPO, c.hover);
  }
}

TEST(SetUpoUpm, CountedUnitsWithUpoAskHowManyPerManhour) {
  Prompts prompts;
  prompts.labelMnhr = "EACH per Manhour:";
  prompts.SetUpoUpm(With("EACH", "BX"), "upo", "");
  EXPECT_TEXT(prompts.labelMnhr, "How many per Manhour:");
}

TEST(SetUpoUpm, StepFourComparesWithTheSystemsName) {
  Prompts prompts;
  prompts.labelUPO = "SHT(s) per SF";  // ends with the takeoff unit: no rule looks at that
  prompts.SetUpoUpm(With("SF", "SHT"), "", "");
  EXPECT_TEXT(prompts.labelUPO, "SHT(s) per SF");
}

TEST(TurnRatio, BothWordings) {
  Prompts prompts;
  prompts.TurnRatio(With("SF", "SHT"), "opu");
  EXPECT_TEXT(prompts.labelUPO, "How many SHT(s) per SF Wall");
  EXPECT_TEXT(prompts.label5, "Leave blank and press Enter to use SF per SHT");
  EXPECT_TEXT(prompts.hoverUPO, "How many SHT(s) of Board per SF Wall");
  prompts.TurnRatio(With("SF", "SHT"), "upo");
  EXPECT_TEXT(prompts.labelUPO, "How many SF per SHT");
  EXPECT_TEXT(prompts.label5, "Leave blank and press Enter to use SHT(s) per SF");
  EXPECT_TEXT(prompts.hoverUPO, "How many SF of Wall per SHT of Board");
}

TEST(TurnLabor, Table) {
  struct Case {
    const char *units, *tag, *labelMnhr, *label8;
  };
  const Case cases[] = {
      {"SF", "mpu", "Manhours per SF:", "Leave blank and press Enter to use SF per manhour"},
      {"EA", "mpu", "Manhours per EA:", "Leave blank and press Enter to use How many per manhour"},
      {"SF", "upm", "SF per Manhour:", "Leave blank and press Enter to use SF per manhour"},
      {"CT", "upm",
       "How many per Manhour:", "Leave blank and press Enter to use How many per manhour"},
      {"EACH", "upm", "EACH per Manhour:", "Leave blank and press Enter to use EACH per manhour"},
  };
  for (const Case& c : cases) {
    Prompts prompts;
    prompts.TurnLabor(With(c.units, "SHT"), c.tag);
    EXPECT_TEXT(prompts.labelMnhr, c.labelMnhr);
    EXPECT_TEXT(prompts.label8, c.label8);
  }
}

TEST(ReservedTerm, FiresWhateverTheCase) {
  EXPECT_TEXT(ReservedTerm(With("sf", "SF")),
              "The term \"SF\" Can't be used.\r\n\r\nSF is being used as the unit for Wall");
  EXPECT_TEXT(ReservedTerm(With("SF", "SF ")), "");
  EXPECT_TEXT(ReservedTerm(With("SF", "SHT")), "");
}

}  // namespace
}  // namespace tamo
