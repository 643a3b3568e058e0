#pragma once

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>
#include <functional>

#include "largebid.h"
#include "startedprogram.h"

namespace tamo::bench {

struct PlayedBid {
  int rooms;
  int materials;
};

// main() of a benchmark in which somebody works with the whole program on a bid of its own.
// Arguments: the program folder, and how many of something, `usual` when it is left out; `play` is
// given the program and that number. Does not return: to take a program apart is no part of a
// benchmark.
inline int PlayProgram(int argc, char** argv, const PlayedBid& bid, int usual,
                       const std::function<void(Program&, int)>& play) {
  KeepMemory();
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  ApplyLook(Look::Of(QApplication::palette()));
  if (argc < 2) {
    std::fprintf(stderr, "%s PROGRAM_FOLDER [HOW_MANY]\n", argv[0]);
    return 2;
  }
  QTemporaryDir home;
  WriteDataFolder(std::filesystem::path(home.path().toStdString()) / "Tamo", bid.rooms,
                  bid.materials);
  StartedProgram started(QString::fromLocal8Bit(argv[1]), home.path());
  play(started.GetProgram(), argc > 2 ? std::atoi(argv[2]) : usual);
  std::fflush(stdout);
  home.remove();
  _Exit(0);
}

// How long `act` takes, in milliseconds.
template <typename Act>
double Timed(const Act& act) {
  QElapsedTimer clock;
  clock.start();
  act();
  return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

}  // namespace tamo::bench
