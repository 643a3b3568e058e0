// Files cut at any byte, or edited by hand: they load as far as they go, the walk goes through, and
// what is entered afterwards is stored.

#include "takeoff/takeoffbench.h"

namespace tamo::test {
namespace {

#define S QStringLiteral

class DamagedFiles : public AreasTest {
 protected:
  // Every beginning of the file, written to `path` one after the other.
  void CutAtEachByte(const QString& path, const QStringList& lines,
                     const std::function<void()>& look) {
    QByteArray whole;
    for (const QString& line : lines) whole += line.toUtf8() + "\r\n";
    for (qsizetype size = 0; size <= whole.size() && !HasFailure(); ++size) {
      WriteRaw(path, whole.left(size));
      look();
      TakeMessages();
    }
  }
};

TEST_F(DamagedFiles, ARoomCutAtAnyByteIsWalkedThrough) {
  Write(Project(S("Rooms/Rooms.tamo")), {S("101"), S("True")});
  CutAtEachByte(Project(S("Rooms/101.rfs")),
                {S("8"), Line(S("Wall Paint"), S("WÄLLE"), S("612.5"), S("SF")),
                 Line(S("Rubber Base"), S("BASE"), S("46.25"), S("LF"))},
                [&] {
                  TakeOff();
                  for (int i = 0; i < 12 && rfs.Visible(); ++i) Press(Key::Name::Enter);
                  EXPECT_FALSE(rfs.Visible());
                });
}

TEST_F(DamagedFiles, TheListOfRoomsCutAtAnyByteStillTakesARoom) {
  CutAtEachByte(Project(S("Rooms/Rooms.tamo")), {S("101"), S("True"), S("Flur"), S("True")}, [&] {
    EnterSchedule();
    const int before = rfs.RoomsList.Count();
    Enter(rfs.Room, S("900"));
    EXPECT_EQ(Rooms().size(), 2 * (before + 1));
    Choose(rfs.Exit);
  });
}

TEST_F(DamagedFiles, AnAreaCutAtAnyByteStillTakesALength) {
  Write(Project(S("ATOs/Areas.tamo")), {S("A"), S("True")});
  CutAtEachByte(
      Project(S("ATOs/A.ato")),
      {ALine(S("Wall Paint"), S("104"), S("SF")), ALine(S("Carpet red"), S("12"), S("SY"))}, [&] {
        StartArea(S("A"));
        Enter(ato.eDescription, S("Rubber Base"));
        Enter(S("5"));
        EXPECT_TRUE(Area(S("A")).contains(ALine(S("Rubber Base"), S("5"), S("LF"))));
        Choose(ato.Exit);
        ato.eDescription.Clear();
      });
}

TEST_F(DamagedFiles, ItemsCutAtAnyByteStillTakeAnItem) {
  CutAtEachByte(Project(S("oItems.tamo")),
                {S("Permit                  100.50"), S("Lift, rented            450.00")}, [&] {
                  desk.Dispatch([&] { bottom.BottomLineItems(&shell.ost); });
                  for (int row = 0; row < bottom.oiList.Count(); ++row)
                    desk.ClickRow(bottom.oiList, row);
                  Enter(bottom.Item, S("Dumpsters"));
                  Enter(S("250"));
                  Enter(bottom.Item, QString());
                  EXPECT_EQ(Lines(Project(S("oItems.tamo"))).last(),
                            S("Dumpsters               250.00"));
                });
}

TEST_F(DamagedFiles, AnAdjustmentCutAtAnyByteIsANumberOrZero) {
  CutAtEachByte(Project(S("Adjustment.tamo")), {S("-1250.5")}, [&] {
    desk.Dispatch([&] { adjustment.PriceAdjustment(&shell.ost); });
    Press(Key::Name::Enter);
    EXPECT_FALSE(adjustment.Visible());
  });
}

TEST_F(DamagedFiles, ASystemCutAtAnyByteHasAUnitOrNone) {
  CutAtEachByte(Project(S("Systems/Carpet.sys")),
                {S("Carpet"), S("SY"), S("31.75"), S("139069013")}, [&] {
                  EnterSchedule();
                  Enter(rfs.Room, S("101"));
                  Enter(S("Carpet"));
                  EXPECT_TRUE(S("SY").startsWith(rfs.Units.Text()));
                  EXPECT_EQ(shared.LineColor.size(), 9);
                  Choose(rfs.Exit);
                });
}

}  // namespace
}  // namespace tamo::test
