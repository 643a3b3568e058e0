#include <gtest/gtest.h>

#include "pricing/pricingroom.h"

// The system on the form is written under its own name, or under one that is new; no other system
// of the library is ever written over.

namespace tamo {
namespace {

using test::Drywall;
using test::PricingRoom;
using test::Stud;

TEST(OpenSystem, AnotherSystemsFileIsNeverWrittenOver) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Stud());
  room.Library("Floor", "SF", "0.00", Drywall());
  const QByteArray floor = room.Bytes("Systems/Floor.sys");
  room.Open();
  room.Enter("Wall");
  // The name is typed over and left without Enter; what stands below is still the wall.
  room.Go(room.form.Description);
  room.form.Description.SelectAll();
  room.Type("floor");
  room.Go(room.form.UnitPrice);
  room.Enter("5");
  EXPECT_EQ(room.Bytes("Systems/Floor.sys"), floor);
  ASSERT_EQ(room.messages.texts.size(), 1);
  EXPECT_TRUE(room.messages.texts[0].contains("\"floor\" is another system"));
  // Enter opens it.
  room.Go(room.form.Description);
  room.Press(Key::Name::Enter);
  EXPECT_EQ(room.form.MaterialList.Rows(), QStringList{"Drywall"});
}

TEST(OpenSystem, AMaterialIsNotFinishedIntoAnotherSystem) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Stud());
  room.Library("Floor", "SF", "0.00", Drywall());
  const QByteArray floor = room.Bytes("Systems/Floor.sys");
  room.Open();
  room.Enter("Wall");
  room.Go(room.form.Description);
  room.form.Description.SelectAll();
  room.Type("Floor");
  room.Go(room.form.WageRate);
  room.Press(Key::Name::Enter);
  EXPECT_EQ(room.messages.texts.size(), 1);
  EXPECT_EQ(room.Bytes("Systems/Floor.sys"), floor);
  EXPECT_FALSE(room.Exists("Systems/Stud.mat"));
}

TEST(OpenSystem, UnderANewNameItIsANewSystem) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Stud());
  room.Open();
  room.Enter("Wall");
  room.Go(room.form.Description);
  room.form.Description.SelectAll();
  room.Type("Wall 2");
  room.Go(room.form.UnitPrice);
  room.Press(Key::Name::Enter);
  EXPECT_EQ(room.Lines("Systems/Wall 2.sys").mid(9), Stud());
  EXPECT_TRUE(room.messages.texts.isEmpty());
  // And it goes on being that.
  room.Press(Key::Name::Enter);
  EXPECT_TRUE(room.messages.texts.isEmpty());
}

TEST(OpenSystem, ANameThatIsInNoListBeginsAnEmptySystem) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Stud());
  const QByteArray wall = room.Bytes("Systems/Wall.sys");
  room.form.DescriptionsList.Clear();  // as after an import
  room.Open();
  room.Enter("Wall");
  EXPECT_EQ(room.FocusName(), "Units");
  EXPECT_TRUE(room.form.System.Empty());
  EXPECT_EQ(room.Lines("Descriptions.tamo"), QStringList{"Wall"});
  EXPECT_EQ(room.Bytes("Systems/Wall.sys"), wall);
}

TEST(OpenSystem, ANameThatWasDeletedBeginsAnew) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Stud());
  room.OpenProject("00-2112001");
  room.Open();
  room.Enter("Wall");
  room.Choose(room.form.SystemDelete);
  EXPECT_TRUE(room.Exists("Systems/Wall.sys"));
  room.Enter("Wall");
  EXPECT_EQ(room.FocusName(), "Units");
  EXPECT_TRUE(room.form.System.Empty());
}

}  // namespace
}  // namespace tamo
