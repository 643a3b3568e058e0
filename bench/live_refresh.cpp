// How long an Enter takes with the automatic refresh on: the key, the durable save of its room and
// the Recap Sheet anew, on 1,000 rooms and 20,000 lines, beside the bare save of the same room.
// Both take turns, so that they meet the same device in the same mood. Arguments: the program
// folder and how many Enters.
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QThread>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "largebid.h"
#include "records/datafolder.h"
#include "startedprogram.h"
#include "takeoff/rfsform.h"

namespace {

using namespace tamo;

double Part(std::vector<double> times, double part) {
  std::sort(times.begin(), times.end());
  return times[static_cast<size_t>(static_cast<double>(times.size() - 1) * part)];
}

void Tell(const char* what, const std::vector<double>& times) {
  std::printf("%-12s median %6.2f ms, 99 of 100 within %6.2f ms\n", what, Part(times, .5),
              Part(times, .99));
}

class Play {
 public:
  explicit Play(Program& program)
      : program_(program), rooms_(*dynamic_cast<RFSForm*>(Find("RFSForm"))) {}

  void Begin() {
    Choose("OpenProject");
    auto* jobs = dynamic_cast<OrderedList*>(Find("Tamo")->Find(QStringLiteral("JobsList")));
    program_.GetDesk().ClickRow(*jobs, 0);
    program_.Shared().AutoCheck = 1;
    Choose("RecapSheet");
    program_.GetDesk().Dispatch([this] { rooms_.TakeOffRoomFinishSchedule(nullptr); });
    QCoreApplication::processEvents();
  }

  double Enter() {
    rooms_.Length.SetText(QStringLiteral("1.5"));
    QElapsedTimer clock;
    clock.start();
    program_.GetDesk().PressKey(rooms_.Length, Key::Named(Key::Name::Enter));
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
  }
  double BareSave() {
    const QString path = ProjectFolder(program_.Shared()).RoomFile(QStringLiteral("Room 1"));
    QString text;
    program_.GetFiles().ReadText(path, text);
    QElapsedTimer clock;
    clock.start();
    program_.GetFiles().SaveText(path, text);
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
  }

 private:
  Form* Find(const char* name) { return program_.FindForm(QString::fromLatin1(name)); }
  void Choose(const char* entry) {
    program_.GetDesk().ChooseMenu(*Find("Tamo")->FindMenu(QString::fromLatin1(entry)));
  }

  Program& program_;
  RFSForm& rooms_;
};

}  // namespace

int main(int argc, char** argv) {
  KeepMemory();
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  ApplyLook(Look::Of(QApplication::palette()));
  if (argc < 2) {
    std::fprintf(stderr, "live_refresh PROGRAM_FOLDER [ENTERS]\n");
    return 2;
  }
  const int count = argc > 2 ? std::atoi(argv[2]) : 500;
  QTemporaryDir home;
  bench::WriteDataFolder(std::filesystem::path(home.path().toStdString()) / "Tamo", 1000, 5);
  bench::StartedProgram started(QString::fromLocal8Bit(argv[1]), home.path());
  QThread::sleep(4);  // the files of a real bid were not written just now
  Play play(started.GetProgram());
  play.Begin();
  std::vector<double> enters;
  std::vector<double> saves;
  for (int i = 0; i < count; ++i) {
    enters.push_back(play.Enter());
    QCoreApplication::processEvents();
    saves.push_back(play.BareSave());
  }
  Tell("Enter", enters);
  Tell("bare save", saves);
  std::fflush(stdout);
  home.remove();
  _Exit(0);
}
