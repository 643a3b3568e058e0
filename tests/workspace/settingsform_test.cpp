#include "workspace/settingsform.h"

#include "workspace/workspaceroom.h"

namespace tamo::test {
namespace {

class Settings : public WorkspaceRoom {
 protected:
  QStringList File() { return Lines("program/Settings.tamo"); }
  SettingsForm& Form() {
    if (form_ == nullptr) {
      form_ = std::make_unique<SettingsForm>(kit, windows);
      form_->Show();
    }
    return *form_;
  }
  QStringList Written(int lines) const { return QStringList(lines, QString()); }

 private:
  std::unique_ptr<SettingsForm> form_;
};

TEST_F(Settings, WithoutAFileTheDefaultsStand) {
  EXPECT_EQ(Form().EstimatorNumber.Text(), "");
  EXPECT_EQ(Form().DataPath.Text(), Path("home/Tamo/"));
  EXPECT_EQ(Form().Line1.Colour(), "255000000");
  EXPECT_EQ(Form().Line1.Width(), Form().HScroll1.Value());
  EXPECT_FALSE(Form().Option1.Selected() || Form().Option2.Selected());
  EXPECT_FALSE(Form().Option3.Selected() || Form().Option4.Selected());
  EXPECT_EQ(shared.GUIText, "");
  EXPECT_FALSE(disk.Exists(Path("program/Settings.tamo")));
}

TEST_F(Settings, ExitWritesTwentyOneLinesWhenBothPairsWerePicked) {
  desk.ClickInto(Form().Option2);
  desk.ClickInto(Form().Option3);
  desk.ClickInto(Form().AutoCheck);
  Enter(Form().EstimatorNumber, QStringLiteral("7"));
  desk.ClickInto(Form().Command1);
  EXPECT_EQ(File(),
            (QStringList{"07", "", "", "", Path("home/Tamo/"), "255000000", "3", "2", " 1 ", "3"} +
             Written(11)));
  EXPECT_EQ(windows.asked, QStringList{"mode 2"});
  EXPECT_FALSE(Form().Visible());
}

TEST_F(Settings, APairThatWasNeverPickedHasNoLine) {
  desk.ClickInto(Form().Command1);
  EXPECT_EQ(File(), (QStringList{"00", "", "", "", Path("home/Tamo/"), "255000000", "3", " 0 "} +
                     Written(11)));
}

TEST_F(Settings, AColourOfTheWrongLengthIsRed) {
  Write("program/Settings.tamo",
        {"07", "", "", "", Path("home/Tamo/"), "12345678", "4", "1", " 0 ", "4"});
  EXPECT_EQ(Form().Line1.Colour(), "255000000");
  EXPECT_EQ(Form().Line1.Width(), 4);
  EXPECT_EQ(shared.LineColor, "255000000");
  EXPECT_EQ(shared.GUIText, "1");
  EXPECT_TRUE(Form().Option4.Selected());
  Run([this] { Form().SaveSettings(); });
  EXPECT_EQ(File()[5], "255000000");
}

TEST_F(Settings, AShortFileLeavesTheLaterFields) {
  Write("program/Settings.tamo", {"07", "Ann"});
  EXPECT_EQ(Form().EstimatorName.Text(), "Ann");
  EXPECT_EQ(Form().DataPath.Text(), Path("home/Tamo/"));
  EXPECT_EQ(Form().HScroll1.Value(), 3);
}

TEST_F(Settings, TheEstimatorsNumberHasTwoDigits) {
  const std::pair<const char*, const char*> rows[] = {
      {"7", "07"}, {"123", "99"}, {"100", "99"}, {"", "00"}, {"x4y", "04"}};
  for (const auto& [typed, stored] : rows) {
    Form().EstimatorNumber.Clear();
    Enter(Form().EstimatorNumber, QLatin1String(typed));
    EXPECT_EQ(Form().EstimatorNumber.Text(), QLatin1String(stored)) << typed;
    EXPECT_EQ(desk.Focused(), &Form().EstimatorName);
  }
  Form().EstimatorNumber.Clear();
  desk.UserFocus(Form().EstimatorNumber);
  desk.UserFocus(Form().Telephone);
  EXPECT_EQ(Form().EstimatorNumber.Text(), "00") << "on leaving it by the mouse, too";
}

TEST_F(Settings, EnterInTheDataFolderMakesItWhole) {
  Enter(Form().DataPath, Path("Work"));
  EXPECT_EQ(Form().DataPath.Text(), Path("Work/Tamo/"));
  for (const char* name : {"Projects", "Systems", "Plans"})
    EXPECT_TRUE(disk.IsFolder(Path("Work/Tamo/") + name)) << name;
  EXPECT_EQ(desk.Focused(), &Form().EstimatorNumber);
}

TEST_F(Settings, ABlankDataFolderIsRepairedWhenTheFieldIsLeftAndWhenItNeverWas) {
  Form().DataPath.Clear();
  Run([this] { Form().SaveSettings(); });
  EXPECT_EQ(Form().DataPath.Text(), Path("program/"));
  desk.UserFocus(Form().DataPath);
  Form().DataPath.Clear();
  desk.UserFocus(Form().Telephone);
  EXPECT_EQ(Form().DataPath.Text(), Path("program/Tamo/"));
}

TEST_F(Settings, VioletIsPaintedLighterThanItIsStored) {
  for (const auto& swatch : Form().swatches) {
    if (swatch->Name() != QLatin1String("iViolet")) continue;
    EXPECT_EQ(swatch->Colour(), "220150255");
    desk.ClickInto(*swatch);
  }
  EXPECT_EQ(Form().Line1.Colour(), "240150255");
  EXPECT_EQ(shared.LineColor, "255000000") << "the plan keeps the old colour until the next start";
}

TEST_F(Settings, TheSwitchOfTheReportsIsWrittenAloneAtOnce) {
  Write("program/Settings.tamo",
        QStringList{"07", "", "", "", Path("home/Tamo/"), "255000000", "3", "1", " 0 ", "3"} +
            Written(11));
  Form().EstimatorName.SetText(QStringLiteral("not saved yet"));
  Run([this] { Form().SetWholeQuantities(true); });
  EXPECT_EQ(File()[1], "");
  EXPECT_EQ(File().last(), "WholeQuantities");
  EXPECT_EQ(File().size(), 21);
  Run([this] { Form().SetWholeQuantities(false); });
  EXPECT_EQ(File().last(), "");
}

TEST_F(Settings, AProgramFolderOfTheMachineGivesEachUserAFile) {
  Write("program/Settings.tamo", {"07", "Shared"});
  disk.Deny(Path("program"));
  EXPECT_EQ(Form().EstimatorName.Text(), "Shared");
  Form().EstimatorName.SetText(QStringLiteral("Own"));
  Run([this] { Form().SaveSettings(); });
  EXPECT_EQ(Lines("program/Settings.tamo")[1], "Shared");
  EXPECT_EQ(Lines("config/Settings.tamo")[1], "Own");
}

TEST_F(Settings, TheEntryShowsAndHides) {
  Form().Hide();
  Run([this] { Form().Toggle(nullptr); });
  EXPECT_TRUE(Form().Visible());
  Run([this] { Form().Toggle(nullptr); });
  EXPECT_FALSE(Form().Visible());
}

}  // namespace
}  // namespace tamo::test
