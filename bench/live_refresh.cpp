// How long an Enter takes with the automatic refresh on: the key, the durable save of its room and
// the Recap Sheet anew, on 1,000 rooms and 20,000 lines, beside the bare save of the same room.
// Both take turns, so that they meet the same device in the same mood. Arguments: the program
// folder and how many Enters.
#include <QThread>
#include <vector>

#include "figureline.h"
#include "playprogram.h"
#include "takeoffplay.h"
#include "timesof.h"

using namespace tamo;

int main(int argc, char** argv) {
  return bench::PlayProgram(argc, argv, {1000, 5}, 500, [](Program& program, int count) {
    QThread::sleep(4);  // the files of a real bid were not written just now
    bench::TakeoffPlay play(program);
    play.Begin();
    std::vector<double> enters;
    std::vector<double> works;
    std::vector<double> saves;
    for (int i = 0; i < count; ++i) {
      enters.push_back(play.Enter());
      works.push_back(play.work);
      QCoreApplication::processEvents();
      saves.push_back(play.BareSave());
    }
    bench::Tell("Enter", enters);
    bench::Tell("its work", works);
    bench::Tell("bare save", saves);
    const std::string what = "Enter with its save and the Recap Sheet anew, 20,000 lines";
    bench::TellFigure(what + ", 99 of 100", bench::Part(enters, .99), "a frame", 16, 1);
    bench::TellFigure(what + ", without waiting for the device, 99 of 100", bench::Part(works, .99),
                      "a frame", 16, 1);
    bench::TellFigure(what + ", median", bench::Part(enters, .5), "its durable save",
                      bench::Part(saves, .5));
  });
}
