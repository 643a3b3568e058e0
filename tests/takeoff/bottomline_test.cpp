// Bottom line items and the price adjustment.

#include "takeoff/takeoffbench.h"

namespace tamo::test {
namespace {

#define S QStringLiteral

class BottomLineTest : public TakeoffTest {
 protected:
  void Open() {
    desk.Dispatch([&] { bottom.BottomLineItems(&shell.ost); });
  }
  QStringList Items() { return Lines(Data(S("Items.tamo"))); }
  QStringList Stored() { return Lines(Project(S("oItems.tamo"))); }
};

TEST_F(BottomLineTest, AnItemIsEnteredAndWrittenWhenTheFormIsLeft) {
  Open();
  EXPECT_EQ(bottom.Caption(), S("The Bottom Line"));
  EXPECT_EQ(FocusName(), S("BottomLine.Item"));
  Enter(S("Dumpsters"));
  EXPECT_EQ(Items(), QStringList{S("Dumpsters ")});
  EXPECT_EQ(FocusName(), S("BottomLine.iPrice"));
  Enter(S("1250"));
  EXPECT_EQ(bottom.oiList.Rows(), QStringList{S("Dumpsters              1250.00")});
  EXPECT_TRUE(bottom.Item.Empty() && bottom.iPrice.Empty());
  EXPECT_EQ(FocusName(), S("BottomLine.Item"));
  EXPECT_FALSE(Exists(Project(S("oItems.tamo"))));  // not before the form is left
  EXPECT_EQ(reports.count, 1);
  Press(Key::Name::Enter);
  EXPECT_FALSE(bottom.Visible());
  EXPECT_EQ(Stored(), QStringList{S("Dumpsters              1250.00")});
  EXPECT_EQ(reports.count, 2);
}

TEST_F(BottomLineTest, LeavingWritesTheFileEvenWhenNothingChanged) {
  Open();
  Press(Key::Name::Enter);
  EXPECT_TRUE(Stored().isEmpty());
  EXPECT_TRUE(Exists(Project(S("oItems.tamo"))));
}

TEST_F(BottomLineTest, AnEmptyPriceIsZero) {
  Open();
  Enter(S("Permit"));
  Enter(QString());
  EXPECT_EQ(bottom.oiList.Row(0), S("Permit                    0.00"));
}

TEST_F(BottomLineTest, ATypedNameReplacesItsLineAndIsAddedToTheNamesAgain) {
  Open();
  Enter(S("Permit"));
  Enter(S("100"));
  Enter(S("Permit"));
  Enter(S("250.5"));
  EXPECT_EQ(bottom.oiList.Rows(), QStringList{S("Permit                  250.50")});
  EXPECT_EQ(Items(), (QStringList{S("Permit "), S("Permit ")}));
}

TEST_F(BottomLineTest, APickedNameCarriesItsBlankAndAddsASecondLine) {
  Write(Data(S("Items.tamo")), {S("Permit "), S("Lift Rental ")});
  Open();
  Enter(S("Permit"));
  Enter(S("100"));
  desk.DoubleClick(bottom.Item);
  EXPECT_TRUE(bottom.ItemList.Shown());
  desk.ClickRow(bottom.ItemList, 0);
  EXPECT_FALSE(bottom.ItemList.Shown());
  EXPECT_EQ(bottom.Item.Text(), S("Permit "));
  EXPECT_EQ(FocusName(), S("BottomLine.Item"));
  Press(Key::Name::Enter);
  EXPECT_EQ(Items().size(), 3);  // the picked one is found, only the typed one was added
  Enter(S("70"));
  EXPECT_EQ(bottom.oiList.Rows(), (QStringList{S("Permit                  100.00"),
                                               S("Permit                   70.00")}));
}

TEST_F(BottomLineTest, AClickedLineComesBackIntoTheFields) {
  Write(Project(S("oItems.tamo")),
        {S("Permit                  100.00"), S("Lift Rental             450.00")});
  Open();
  desk.ClickRow(bottom.oiList, 1);
  EXPECT_EQ(bottom.Item.Text(), S("Lift Rental"));
  EXPECT_EQ(bottom.iPrice.Text(), S("450.00"));
  EXPECT_EQ(FocusName(), S("BottomLine.iPrice"));
  Enter(S("500"));
  EXPECT_EQ(bottom.oiList.Row(1), S("Lift Rental             500.00"));
}

TEST_F(BottomLineTest, ANameOfTwentyLosesItsLastCharacterOnTheWayBack) {
  Open();
  Enter(S("ABCDEFGHIJKLMNOPQRST"));
  Enter(S("1"));
  desk.ClickRow(bottom.oiList, 0);
  EXPECT_EQ(bottom.Item.Text(), S("ABCDEFGHIJKLMNOPQRS"));
  EXPECT_EQ(bottom.iPrice.Text(), S("T      1.00"));
}

TEST_F(BottomLineTest, NameAndPriceOverThirtyColumnsAreRefused) {
  Open();
  Enter(S("ABCDEFGHIJKLMNOPQRST"));
  Enter(S("12345678"));  // 12345678.00 has 11 characters
  EXPECT_EQ(TakeMessages().size(), 1);
  EXPECT_TRUE(bottom.oiList.Empty());
  EXPECT_EQ(bottom.iPrice.Text(), S("12345678.00"));
}

TEST_F(BottomLineTest, DeleteItemByTheEditList) {
  Write(Project(S("oItems.tamo")),
        {S("Permit                  100.00"), S("Lift Rental             450.00")});
  Open();
  desk.RightClick(bottom.oiList);
  EXPECT_FALSE(bottom.EditList.Shown());
  desk.RightClickRow(bottom.oiList, 0);
  EXPECT_TRUE(bottom.EditList.Shown());
  EXPECT_EQ(bottom.EditList.Rows(), (QStringList{S("Delete Item"), QString(), S("Exit")}));
  desk.ClickRow(bottom.EditList, 1);
  EXPECT_TRUE(bottom.EditList.Shown());
  desk.ClickRow(bottom.EditList, 2);
  EXPECT_FALSE(bottom.EditList.Shown());
  EXPECT_EQ(bottom.EditList.Index(), -1);
  EXPECT_EQ(bottom.oiList.Count(), 2);
  desk.RightClickRow(bottom.oiList, 0);
  desk.ClickRow(bottom.EditList, 0);
  EXPECT_FALSE(bottom.EditList.Shown());
  EXPECT_EQ(bottom.EditList.Index(), -1);
  EXPECT_EQ(Stored(), QStringList{S("Lift Rental             450.00")});
}

TEST_F(BottomLineTest, AnItemNameWithACommaComesBackSplit) {
  Write(Project(S("oItems.tamo")), {S("Lift, rented            450.00")});
  Open();
  EXPECT_EQ(bottom.oiList.Rows(), (QStringList{S("Lift"), S("rented            450.00")}));
}

TEST_F(BottomLineTest, AMissingFileLeavesTheListEmpty) {
  Open();
  EXPECT_TRUE(bottom.oiList.Empty());
  EXPECT_TRUE(TakeMessages().isEmpty());
}

TEST_F(BottomLineTest, ActivationReadsTheNames) {
  Open();
  desk.Dispatch([&] { shell.main.Show(); });
  Write(Data(S("Items.tamo")), {S("Permit ")});
  desk.UserActivate(bottom);
  EXPECT_EQ(bottom.ItemList.Rows(), QStringList{S("Permit ")});
}

TEST_F(BottomLineTest, ClosingTheWindowAndOpeningItAgainLosesNoLine) {
  Open();
  Enter(S("Permit"));
  Enter(S("100"));
  Open();
  EXPECT_EQ(bottom.oiList.Count(), 1);
  Enter(S("Lift Rental"));
  Enter(S("450"));
  desk.CloseBox(bottom);
  EXPECT_FALSE(bottom.Visible());
  EXPECT_EQ(Stored().size(), 2);
}

TEST_F(BottomLineTest, LinesStayWithTheirProject) {
  Open();
  Enter(S("Permit"));
  Enter(S("100"));
  const QString path = Project(S("oItems.tamo"));
  OpenProject(S("00-2112002"));
  desk.Dispatch([&] { shell.main.Show(); });
  desk.UserActivate(bottom);
  EXPECT_TRUE(bottom.oiList.Empty());
  EXPECT_EQ(Lines(path).size(), 1);
  EXPECT_FALSE(Exists(Project(S("oItems.tamo"))));
}

class AdjustmentTest : public TakeoffTest {
 protected:
  void Open() {
    desk.Dispatch([&] { adjustment.PriceAdjustment(&shell.ost); });
  }
  QStringList Stored() { return Lines(Project(S("Adjustment.tamo"))); }
};

TEST_F(AdjustmentTest, AWholeAmountHalvesUpward) {
  const QStringList table = {S("100.5"), S("101"),  S("-100.5"), S("-100"), S("1250"), S("1250"),
                             S("-3"),    S("-3"),   S("0.4"),    S("0"),    S("-0.5"), S("0"),
                             S("0"),     S("0.00"), S("x"),      S("0.00")};
  for (qsizetype i = 0; i < table.size(); i += 2) {
    Open();
    EXPECT_EQ(FocusName(), S("AdjustmentForm.Adjustment"));
    Enter(table[i]);
    EXPECT_EQ(Stored(), QStringList{table[i + 1]}) << table[i].toStdString();
    EXPECT_FALSE(adjustment.Visible());
  }
  EXPECT_EQ(reports.count, static_cast<int>(table.size() / 2));
}

TEST_F(AdjustmentTest, ANewProjectShowsAnEmptyFieldAndEnterWritesZero) {
  Open();
  EXPECT_EQ(adjustment.Caption(), S("Adjustment"));
  EXPECT_EQ(adjustment.Adjustment.Text(), QString());
  Press(Key::Name::Enter);
  EXPECT_EQ(Stored(), QStringList{S("0.00")});
}

TEST_F(AdjustmentTest, LeavingInAnyOtherWayWritesNothing) {
  Open();
  Type(S("500"));
  desk.CloseBox(adjustment);
  EXPECT_FALSE(Exists(Project(S("Adjustment.tamo"))));
}

TEST_F(AdjustmentTest, ASecondFocusReadsTheFileAgain) {
  Write(Project(S("Adjustment.tamo")), {S("-250")});
  Open();
  EXPECT_EQ(adjustment.Adjustment.Text(), S("-250"));
  EXPECT_EQ(adjustment.Adjustment.SelectedText(), S("-250"));
  Type(S("999"));
  desk.Dispatch([&] { shell.main.Show(); });
  desk.UserActivate(adjustment);
  EXPECT_EQ(adjustment.Adjustment.Text(), S("-250"));
}

TEST_F(AdjustmentTest, NoProjectShowsAnothersAmount) {
  Write(Project(S("Adjustment.tamo")), {S("-250")});
  Open();
  desk.CloseBox(adjustment);
  OpenProject(S("00-2112002"));
  adjustment.ForgetAmount();
  Open();
  EXPECT_EQ(adjustment.Adjustment.Text(), QString());
}

TEST_F(AdjustmentTest, WithinAProjectTheAmountStandsWhenItsFileIsGone) {
  Write(Project(S("Adjustment.tamo")), {S("-250")});
  Open();
  desk.CloseBox(adjustment);
  disk.RemoveFile(Project(S("Adjustment.tamo")));
  Open();
  EXPECT_EQ(adjustment.Adjustment.Text(), S("-250"));
}

}  // namespace
}  // namespace tamo::test
