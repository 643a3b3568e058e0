#pragma once

#include <QApplication>
#include <QString>
#include <QTextStream>
#include <functional>

#include "common/memory.h"
#include "common/paths.h"
#include "plans/pdfdraw.h"
#include "plans/workerengine.h"
#include "program/program.h"
#include "silentplatform.h"
#include "windows/look.h"
#include "windows/qtservices.h"
#include "windows/windowkeeper.h"

namespace tamo::bench {

// Nobody sits before a benchmark: what is said goes to the terminal, every question is answered No.
class SpokenMessages : public Messages {
 public:
  void Tell(const QString& text) override { QTextStream(stderr) << text << '\n'; }
  bool Ask(const QString& text) override {
    Tell(text);
    return false;
  }
};

// The program with its windows, as it starts at a desk, on the home folder `home`.
class StartedProgram {
 public:
  // `beforeWindow`: what is done when the first window is about to be put together.
  StartedProgram(const QString& programFolder, const QString& home,
                 const std::function<void()>& beforeWindow = {})
      : platform_{disk_,        clock_,        messages_, silent_,
                  clipboard_,   programFolder, home,      home + QStringLiteral("/config"),
                  &historyDisk_},
        files_(disk_),
        viewer_(files_, engine_),
        program_(platform_, viewer_),
        windows_(program_, &viewer_.Pictures(), home + QStringLiteral("/windows.ini")) {
    viewer_.Patience().Set(6, 0);
    disk_.MakeFolder(platform_.configFolder);
    windows_.beforeWindow = beforeWindow;
    program_.Start();
  }

  Program& GetProgram() { return program_; }

 private:
  RealDisk disk_;
  RealDisk historyDisk_;
  SystemClock clock_;
  SpokenMessages messages_;
  SilentPlatform silent_;
  DeskClipboard clipboard_;
  Platform platform_;
  Files files_;
  WorkerEngine engine_{TAMO_ENGINE};
  PdfDraw viewer_;
  Program program_;
  WindowKeeper windows_;
};

}  // namespace tamo::bench
