#pragma once

#include "plans/pdfdraw.h"
#include "program/program.h"
#include "support/fakeplanengine.h"
#include "support/room.h"
#include "windows/application.h"
#include "windows/formwindow.h"
#include "windows/look.h"
#include "windows/windowprobe.h"

namespace tamo::test {

// The whole program with its windows.
struct KeeperRoom : WithApplication, MachineRoom {
  KeeperRoom() {
    ApplyLook(Look::Light());
    program.Start();
    windows.SyncNow();
  }
  Form& FormOf(const char* name) { return *program.FindForm(QLatin1String(name)); }
  FormWindow& Window(const char* name) {
    return dynamic_cast<FormWindow&>(*windows.WindowOf(FormOf(name)));
  }
  void Menu(const char* form, const char* entry) {
    desk.ChooseMenu(*FormOf(form).FindMenu(QLatin1String(entry)));
    Settle();
  }

  Files planFiles{disk};
  FakePlanEngine engine;
  PdfDraw viewer{planFiles, engine};
  Program program{platform, viewer};
  Desk& desk = program.GetDesk();
  WindowProbe windows{program, nullptr, Path("windows.ini")};
};

}  // namespace tamo::test
