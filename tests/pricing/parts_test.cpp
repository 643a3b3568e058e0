#include "common/failure.h"
#include "common/numbers.h"
#include "pricing/chainbench.h"

// The parts of the price library, each without the chains of the others.

namespace tamo::test {
namespace {

#define S QStringLiteral

struct Parts : OnTheBench {
  QStringList Library(const QString& file) { return disk.Lines(S("/home/Tamo/Systems/") + file); }
  SystemFile Wall() {
    return {S("Wall"), S("SF"), S("0.00"), S("255000000"), {}, Stud() + Drywall()};
  }
};

TEST_F(Parts, AStoreReadsWhatItWroteTheProjectsCopyFirst) {
  SystemStore store(bench.kit);
  SystemFile read;
  EXPECT_FALSE(store.Read(S("Wall"), read));
  EXPECT_FALSE(store.Has(S("Wall")));
  store.Write(Wall());
  ASSERT_TRUE(store.Read(S("wall"), read));
  EXPECT_EQ(read.blocks, Stud() + Drywall());
  shared.JobID = S("00-2112001");
  disk.MakeFolder(S("/home/Tamo/Projects"));
  disk.MakeFolder(S("/home/Tamo/Projects/00-2112001"));
  disk.MakeFolder(S("/home/Tamo/Projects/00-2112001/Systems"));
  SystemFile dearer = Wall();
  dearer.unitPrice = S("9.00");
  store.Write(dearer);
  store.Remove(S("Wall"));  // the copy goes, the library's stays
  ASSERT_TRUE(store.Read(S("Wall"), read));
  EXPECT_EQ(read.unitPrice, S("9.00"));
  EXPECT_THROW(store.Read(S("a/b"), read), RunTimeFailure);
  EXPECT_FALSE(store.Has(S("a/b")));
}

TEST_F(Parts, AVocabularyRemembersANameOnce) {
  VocabularyList& units = bench.vocabulary.orderUnits;
  units.Remember(S("SHT"));
  units.Remember(S("SHT"));
  units.Remember(S("sht"));
  EXPECT_EQ(disk.Lines(S("/home/Tamo/oUnits.tamo")), (QStringList{"SHT", "sht"}));
  EXPECT_EQ(units.Find(S("Sht")), 0);
  EXPECT_EQ(units.Find(S("PL")), -1);
  bench.oUnitsList.Clear();
  EXPECT_EQ(units.Load(), kNoError);
  EXPECT_EQ(bench.oUnitsList.Count(), 2);
}

TEST_F(Parts, AnOpenSystemIsTakenAndWritten) {
  bench.open.Take(Wall());
  EXPECT_EQ(bench.Units.Text(), S("SF"));
  EXPECT_EQ(bench.Line1.Colour(), S("255000000"));
  EXPECT_EQ(bench.MaterialList.Rows(), (QStringList{"Stud", "Drywall"}));
  EXPECT_GT(Value(bench.EUP.Caption()), 0);
  EXPECT_EQ(bench.open.AsFile().blocks, Stud() + Drywall());
  bench.open.SaveSystem();
  EXPECT_EQ(Library(S("Wall.sys")).mid(8), Stud() + Drywall());
  bench.open.Empty();
  EXPECT_TRUE(bench.blocks.Empty());
  EXPECT_EQ(bench.Units.Text(), QString());
}

TEST_F(Parts, AnEmptySystemAsksInItsOwnUnit) {
  bench.LabelUPO.SetCaption(S("How many PL(s) per SF"));
  bench.LabelMnhr.SetCaption(S("Manhours per SF of Wall:"));
  bench.open.Take({S("Base"), S("LF"), S("0.00"), {}, {}, {}});
  EXPECT_EQ(bench.LabelUPO.Caption(), S("LF per "));
  EXPECT_EQ(bench.LabelMnhr.Caption(), S("LF per Manhour:"));
}

TEST_F(Parts, ThePriceBringsUpTheNumberThatIsZero) {
  QStringList blocks = Stud() + Drywall();
  blocks[12 + 3] = S("0");
  bench.open.Take({S("Wall"), S("SF"), S("0.00"), {}, {}, blocks});
  const QString soFar = bench.EUP.Caption();
  EXPECT_THROW(bench.price.MakeEUP(), RunTimeFailure);
  EXPECT_EQ(bench.EUP.Caption(), soFar);
  EXPECT_EQ(bench.MaterialList.Index(), 1);
  EXPECT_TRUE(bench.UPO.HasFocus());
}

TEST_F(Parts, AMaterialComesUpAndGoesBackAsItWas) {
  bench.open.Take(Wall());
  bench.MaterialList.SetIndex(0);
  bench.material.ShowSystem();
  EXPECT_EQ(bench.LabelUPO.Caption(), S("How many LF(s) per SF"));
  EXPECT_EQ(bench.material.ToStore().Rows(), Stud());
  bench.material.TurnRatio();
  EXPECT_EQ(bench.rows.Row(4), S("upo"));
  EXPECT_EQ(bench.LabelUPO.Caption(), S("How many SF per LF"));
  bench.material.TurnLabor();
  EXPECT_EQ(bench.rows.Row(6), S("mpu"));
}

TEST_F(Parts, AMaterialFileReadsBackAsItWasWritten) {
  bench.Description.SetText(S("Wall"));
  bench.Units.SetText(S("SF"));
  bench.material.SaveMaterial(MaterialBlock::At(Stud(), 0));
  EXPECT_EQ(Library(S("Stud.mat")), Stud().mid(0, 9));
  bench.material.ClearSomeStuff();
  bench.Material.SetText(S("Stud"));
  bench.material.LoadMaterial();
  EXPECT_TRUE(bench.material.FromLibrary());
  EXPECT_EQ(bench.material.ToStore().Rows(), Stud());
}

}  // namespace
}  // namespace tamo::test
