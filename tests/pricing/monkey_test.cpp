#include <gtest/gtest.h>

#include <random>

#include "pricing/pricingroom.h"

// Keys, clicks and entries at random: the form stays usable, shows no infinity, and writes nothing
// outside the data folder.

namespace tamo {
namespace {

using test::Compound;
using test::Drywall;
using test::PricingRoom;
using test::Stud;

class Monkey {
 public:
  Monkey(PricingRoom& room, unsigned seed) : room_(room), random_(seed) {}

  void Act() {
    const auto& controls = room_.form.Controls();
    const auto& menus = room_.form.Menus();
    Control* control = controls[At(controls.size())];
    switch (At(12)) {
      case 0:
        if (control->Usable()) room_.Click(*control);
        break;
      case 1:
        if (control->Usable()) room_.desk.RightClick(*control);
        break;
      case 2:
        if (auto* list = dynamic_cast<OrderedList*>(control);
            list && list->Usable() && list->Count())
          room_.Row(*list, static_cast<int>(At(static_cast<size_t>(list->Count()))));
        break;
      case 3:
        if (menus[At(menus.size())]->Choosable()) room_.Choose(*menus[At(menus.size())]);
        break;
      case 4:
        if (auto* field = dynamic_cast<TextField*>(control); field && field->Usable())
          room_.desk.Paste(*field, Text());
        break;
      case 5:
        if (control->Usable()) room_.Go(*control);
        break;
      case 6:
        room_.desk.MoveFocus(At(2) == 0);
        break;
      default:
        if (At(2) == 0) room_.Type(Text());
        room_.Press(At(5) == 0 ? Key::Name::Backspace : Key::Name::Enter);
    }
    if (!room_.form.Visible()) room_.Open();
  }

 private:
  size_t At(size_t count) { return std::uniform_int_distribution<size_t>(0, count - 1)(random_); }
  QString Text() {
    static const QStringList texts = {"Wall", "Stud", "SF",  "EA",  "SHT", "12.5", "0", "-",
                                      "..",   "16",   "NUL", "a/b", "opu", "9e99", ".", "wall"};
    return texts[static_cast<int>(At(static_cast<size_t>(texts.size())))];
  }

  PricingRoom& room_;
  std::mt19937 random_;
};

TEST(Random, EntriesLeaveTheFormUsable) {
  for (unsigned seed = 1; seed <= 4; ++seed) {
    PricingRoom room;
    room.Library("Wall", "SF", "0.00", Stud() + Drywall() + Compound());
    room.Library("Caulk", "LF", "4.15");
    const QStringList around = room.disk.Names(room.folder.path());
    room.Open();
    Monkey monkey(room, seed);
    for (int i = 0; i < 1500; ++i) {
      monkey.Act();
      ASSERT_FALSE(room.form.EUP.Caption().contains("inf"));
      ASSERT_FALSE(room.form.EUP.Caption().contains("nan"));
      ASSERT_LE(room.form.MaterialList.Count(), room.form.System.Count() / 12 + 2);
    }
    // An export may have gone into the home folder, which is where the picker begins.
    for (const QString& name : room.disk.Names(room.folder.path()))
      EXPECT_TRUE(around.contains(name) || name.endsWith(".sys")) << name.toStdString();
    room.form.Hide();
    room.Open();
    room.EnterAll({"Fresh system", "SF", ""});
    EXPECT_EQ(room.FocusName(), "Material");
  }
}

}  // namespace
}  // namespace tamo
