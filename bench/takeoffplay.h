#pragma once

#include <QCoreApplication>

#include "playprogram.h"
#include "program/program.h"
#include "records/datafolder.h"
#include "takeoff/rfsform.h"
#include "threadwork.h"

namespace tamo::bench {

// Somebody who takes off a room of the first project while a report stands open and follows.
class TakeoffPlay {
 public:
  explicit TakeoffPlay(Program& program)
      : program_(program), rooms_(*dynamic_cast<RFSForm*>(Find("RFSForm"))) {}

  void Begin(bool report = true) {
    Choose("OpenProject");
    auto* jobs = dynamic_cast<OrderedList*>(Find("Tamo")->Find(QStringLiteral("JobsList")));
    program_.GetDesk().ClickRow(*jobs, 0);
    if (report) {
      program_.Shared().AutoCheck = 1;
      Choose("RecapSheet");
    }
    program_.GetDesk().Dispatch([this] { rooms_.TakeOffRoomFinishSchedule(nullptr); });
    QCoreApplication::processEvents();
  }

  void Choose(const char* entry) {
    program_.GetDesk().ChooseMenu(*Find("Tamo")->FindMenu(QString::fromLatin1(entry)));
  }

  // What the last Enter worked, without what its save waited for the device, in milliseconds.
  double work = 0;

  // An Enter in Length, in milliseconds.
  double Enter() {
    rooms_.Length.SetText(QStringLiteral("1.5"));
    const double before = WorkOfThread();
    const double took =
        Timed([this] { program_.GetDesk().PressKey(rooms_.Length, Key::Named(Key::Name::Enter)); });
    work = WorkOfThread() - before;
    return took;
  }

  // The line is ended, by nothing in its length and its height, and the next of the room is in
  // work.
  void NextLine() {
    Desk& desk = program_.GetDesk();
    for (TextField* field : {&rooms_.Length, &rooms_.How}) {
      field->Clear();
      desk.PressKey(*field, Key::Named(Key::Name::Enter));
    }
    // Behind the last room it begins anew.
    if (!rooms_.Visible()) desk.Dispatch([this] { rooms_.TakeOffRoomFinishSchedule(nullptr); });
    if (rooms_.RoomList.Empty()) return;
    line_ = (line_ + 1) % rooms_.RoomList.Count();
    desk.ClickRow(rooms_.RoomList, line_);
  }

  // Another room, saved as an Enter saves it.
  double BareSave() {
    const QString path = ProjectFolder(program_.Shared()).RoomFile(QStringLiteral("Room 1"));
    QString text;
    program_.GetFiles().ReadText(path, text);
    return Timed([&] { program_.GetFiles().SaveText(path, text); });
  }

 private:
  Form* Find(const char* name) { return program_.FindForm(QString::fromLatin1(name)); }

  Program& program_;
  RFSForm& rooms_;
  int line_ = 0;
};

}  // namespace tamo::bench
