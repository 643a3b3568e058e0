// How long each report over a million takeoff lines holds the window: a clock ticks every few
// milliseconds in the window's own thread, and the longest silence between two ticks is told, with
// the time of the whole report. Arguments: the program folder, and how many rooms of 20 lines.
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>

#include "startedprogram.h"

namespace {

namespace fs = std::filesystem;

void WriteProject(const fs::path& data, int rooms) {
  const fs::path project = data / "Projects/07-2611001";
  for (const char* part : {"Rooms", "Systems", "ATOs"}) fs::create_directories(project / part);
  std::ofstream(data / "Jobs.lst", std::ios::binary) << "07-2611001   Large\r\n";
  std::ofstream(project / "JobNFO.tamo", std::ios::binary)
      << "07-2611001\r\nLarge\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n";
  for (int s = 0; s < 150; ++s) {
    std::ofstream file(project / ("Systems/System " + std::to_string(s) + ".sys"),
                       std::ios::binary);
    file << "System " << s << "\r\nSF\r\n0.00\r\n255000000\r\n\r\n\x01\r\n\r\n\r\n";
    for (int m = 0; m < 2; ++m) {
      file << "Material " << s % 40 << "-" << m << "\r\nBX\r\n"
           << 12 + m << ".50\r\n32\r\nupo\r\n45\r\nupm\r\n5\r\n41.50\r\n\r\n\r\n\r\n";
    }
  }
  std::mt19937 dice(1);
  std::ofstream list(project / "Rooms/Rooms.tamo", std::ios::binary);
  for (int r = 0; r < rooms; ++r) {
    list << "Room " << r << "\r\nTrue\r\n";
    std::ofstream room(project / ("Rooms/Room " + std::to_string(r) + ".rfs"), std::ios::binary);
    room << "9\r\n";
    char line[80];
    for (int l = 0; l < 20; ++l) {
      std::snprintf(line, sizeof line, "%-21s%-11s%14.2f SF\r\n",
                    ("System " + std::to_string(dice() % 150)).c_str(), "WALLS",
                    8 + dice() % 240000 / 100.0);
      room << line;
    }
  }
}

class Watch {
 public:
  Watch() {
    QObject::connect(&timer_, &QTimer::timeout,
                     [this] { longest_ = std::max(longest_, silence_.restart()); });
    timer_.start(2);
  }
  void Begin() {
    Settle();
    longest_ = 0;
    silence_.start();
    whole_.start();
  }
  void End(const char* what, int lines) {
    const qint64 made = whole_.elapsed();
    Settle();
    std::printf("%-16s %8d lines  %6lld ms, longest silence %4lld ms\n", what, lines,
                static_cast<long long>(made), static_cast<long long>(longest_));
    std::fflush(stdout);
  }

 private:
  // Until everything that was put off is done.
  static void Settle() {
    QElapsedTimer clock;
    for (clock.start(); clock.elapsed() < 300;)
      QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
  }

  QTimer timer_;
  QElapsedTimer silence_;
  QElapsedTimer whole_;
  qint64 longest_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  tamo::KeepMemory();
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  tamo::ApplyLook(tamo::Look::Of(QApplication::palette()));
  if (argc < 2) {
    std::fprintf(stderr, "longest_hold PROGRAM_FOLDER [ROOMS]\n");
    return 2;
  }
  QTemporaryDir home;
  const int rooms = argc > 2 ? std::atoi(argv[2]) : 50000;
  WriteProject(fs::path(home.path().toStdString()) / "Tamo", rooms);
  tamo::bench::StartedProgram started(QString::fromLocal8Bit(argv[1]), home.path());
  tamo::Program& program = started.GetProgram();
  const auto list = [&](const char* form, const char* name) {
    auto* found = dynamic_cast<tamo::OrderedList*>(
        program.FindForm(QString::fromLatin1(form))->Find(QString::fromLatin1(name)));
    return found;
  };
  const auto choose = [&](const char* entry) {
    program.GetDesk().ChooseMenu(
        *program.FindForm(QStringLiteral("Tamo"))->FindMenu(QString::fromLatin1(entry)));
  };
  choose("OpenProject");
  program.GetDesk().ClickRow(*list("Tamo", "JobsList"), 0);
  Watch watch;
  for (const char* report : {"Quantities", "RecapSheet", "BreakDown", "BillOfMaterial", "fCopy",
                             "oCopy", "Quantities"}) {
    watch.Begin();
    choose(report);
    watch.End(report, list("Reports", "Reporter")->Count() + list("Reports", "Reporter1")->Count());
  }
  home.remove();
  _Exit(0);
}
