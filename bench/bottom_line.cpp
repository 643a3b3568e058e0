// How long an Enter in the price of a bottom line item takes, with the save of the item names and
// what keeps the list itself until its last step, beside the bare save of the same names. Both take
// turns, so that they meet the same device in the same mood. Arguments: the program folder and how
// many Enters.
#include <vector>

#include "figureline.h"
#include "playprogram.h"
#include "records/namelists.h"
#include "takeoff/bottomline.h"
#include "timesof.h"

namespace {

using namespace tamo;

constexpr int kItems = 200;

class BottomLinePlay {
 public:
  explicit BottomLinePlay(Program& program)
      : program_(program),
        form_(*dynamic_cast<BottomLine*>(program.FindForm(QStringLiteral("BottomLine")))) {}

  void Begin() {
    Form& main = *program_.FindForm(QStringLiteral("Tamo"));
    Desk& desk = program_.GetDesk();
    desk.ChooseMenu(*main.FindMenu(QStringLiteral("OpenProject")));
    desk.ClickRow(*dynamic_cast<OrderedList*>(main.Find(QStringLiteral("JobsList"))), 0);
    desk.ChooseMenu(*main.FindMenu(QStringLiteral("BottomLineItems")));
    for (int i = 0; i < kItems; ++i) Enter(i);
  }
  double Enter(int price) {
    form_.Item.SetText(QStringLiteral("Item %1").arg(price % kItems));
    form_.iPrice.SetText(QString::number(price));
    return Timed(
        [this] { program_.GetDesk().PressKey(form_.iPrice, Key::Named(Key::Name::Enter)); });
  }
  // With a name more: the list of names changes, too.
  double EnterName(int number) {
    form_.Item.SetText(QStringLiteral("Name %1").arg(number));
    return Timed([this] { program_.GetDesk().PressKey(form_.Item, Key::Named(Key::Name::Enter)); });
  }
  double BareSave() {
    return Timed([this] {
      WriteNames(program_.GetFiles(), program_.Shared(), NameList::Items, form_.ItemList.Rows());
    });
  }

 private:
  template <typename Act>
  static double Timed(const Act& act) {
    const double took = bench::Timed(act);
    QCoreApplication::processEvents();
    return took;
  }

  Program& program_;
  BottomLine& form_;
};

}  // namespace

int main(int argc, char** argv) {
  return bench::PlayProgram(argc, argv, {10, 5}, 300, [](Program& program, int count) {
    BottomLinePlay play(program);
    play.Begin();
    std::vector<double> names;
    std::vector<double> prices;
    std::vector<double> saves;
    for (int i = 0; i < count; ++i) {
      names.push_back(play.EnterName(i));
      prices.push_back(play.Enter(kItems + i));
      saves.push_back(play.BareSave());
    }
    bench::Tell("name", names);
    bench::Tell("price", prices);
    bench::Tell("bare save", saves);
    bench::TellFigure("Enter in the name of a bottom line item, 200 items", bench::Part(names, .5),
                      "the save of the names", bench::Part(saves, .5));
    bench::TellFigure("Enter in the price of one", bench::Part(prices, .5), "the save of the names",
                      bench::Part(saves, .5));
  });
}
