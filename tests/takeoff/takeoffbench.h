#pragma once

#include <gtest/gtest.h>

#include "common/desk.h"
#include "common/failure.h"
#include "common/files.h"
#include "common/kit.h"
#include "support/room.h"
#include "takeoff/adjustmentform.h"
#include "takeoff/bottomline.h"
#include "takeoff/estimateform.h"
#include "takeoff/rfsform.h"

namespace tamo::test {

class RecordingPlan : public PlanTools {
 public:
  void SetToolMode(int mode) override {
    tool = mode;
    calls += QStringLiteral("tool %1").arg(mode);
  }
  void SetPenColour(const QString& code) override { pen = code; }
  void ResetMeasure() override { ++resets; }
  void SaveIt() override { calls += QStringLiteral("save"); }
  void ClearDistance() override { calls += QStringLiteral("clear"); }
  void ReleaseMode() override { calls += QStringLiteral("release"); }
  void DeleteKey() override { calls += QStringLiteral("delete"); }
  QString ScaleText() const override { return QStringLiteral("1/4\"=1'"); }

  int tool = 0;
  QString pen;
  int resets = 0;
  QStringList calls;
};

class RecordingPricing : public MissingSystemPricing {
 public:
  void ShowWithName(const QString& system) override { names += system; }
  QStringList names;
};

class RecordingRefresh : public TakeoffReportRefresh {
 public:
  void PrintReport() override {
    ++count;
    if (onRefresh) onRefresh();
  }
  int count = 0;
  std::function<void()> onRefresh;
};

// A plan whose marks have the texts that were measured as their names.
class RecordingMarks : public MeasuredMarks {
 public:
  EntryMarks MarksOf(const std::vector<Measured>& fields, const EnteredLine&) override {
    EntryMarks found{QStringLiteral("Larkspur"), {}};
    for (const Measured& field : fields) {
      if (measured.removeOne(field.text)) found.names += field.text;
    }
    return found;
  }
  bool Reaches(const EntryMarks& marks) const override { return reaches || marks.names.isEmpty(); }
  void PutOn(const EntryMarks& marks, bool on) override {
    for (const QString& name : marks.names) moved += (on ? "on " : "off ") + name;
  }

  QStringList measured;  // and not entered yet
  QStringList moved;
  bool reaches = true;
};

// Two bare windows stand for the main form and the plan.
class RecordingShell : public TakeoffExits {
 public:
  explicit RecordingShell(Desk& desk)
      : main(desk, QStringLiteral("Tamo")), ost(desk, QStringLiteral("OST")) {}
  void ShowMainForm() override {
    calls += QStringLiteral("main");
    main.Show();
  }
  void ShowProjectPanel() override { calls += QStringLiteral("panel"); }
  void ShowOST() override {
    calls += QStringLiteral("OST");
    ost.Show();
  }
  Form main;
  Form ost;
  QStringList calls;
};

// The four takeoff forms on a data folder of their own, with a project open and some systems
// priced.
class TakeoffTest : public ::testing::Test, public FormRoom {
 protected:
  TakeoffTest();

  // --- what a person does
  void Enter(TextField& field, const QString& text);  // clicks in, types over, presses Enter
  void Enter(const QString& text);                    // the same in the focused field
  void Press(Key::Name name);                         // into the focused control
  void Type(const QString& text);
  void Choose(MenuEntry& entry) { desk.ChooseMenu(entry); }
  void EnterSchedule() {
    desk.Dispatch([&] { rfs.EnterRoomFinishSchedule(&shell.ost); });
  }
  void TakeOff() {
    desk.Dispatch([&] { rfs.TakeOffRoomFinishSchedule(&shell.ost); });
  }
  void EnterItems() {
    desk.Dispatch([&] { ato.NonFinishScheduleItems(&shell.ost); });
  }
  void OpenProject(const QString& id);
  // Room, then system and finish area pairs, then the height.
  void EnterRoom(const QString& room, const QStringList& systemsAndAreas, const QString& height);

  // --- files
  QString Data(const QString& path) const { return data + path; }
  QString Project(const QString& path) const {
    return data + QStringLiteral("Projects/") + shared.JobID + QLatin1Char('/') + path;
  }
  void Write(const QString& path, const QStringList& lines);
  void WriteRaw(const QString& path, const QByteArray& bytes);
  QStringList Lines(const QString& path);
  bool Exists(const QString& path) { return disk.Exists(path); }
  void MakeSystem(const QString& name, const QString& unit,
                  const QString& colour = QStringLiteral("000128255"));
  QStringList Rooms() { return Lines(Project(QStringLiteral("Rooms/Rooms.tamo"))); }
  QStringList Room(const QString& name) {
    return Lines(Project(QStringLiteral("Rooms/") + name + QStringLiteral(".rfs")));
  }
  QStringList Area(const QString& name) {
    return Lines(Project(QStringLiteral("ATOs/") + name + QStringLiteral(".ato")));
  }
  QString FocusName() const;
  QStringList TakeMessages();

  QString data;
  RecordingPlan plan;
  RecordingPricing pricing;
  RecordingRefresh reports;
  RecordingShell shell{desk};
  RecordingMarks marks;
  TakingBack back{kit, marks, reports};
  RFSForm rfs{kit, plan, pricing, reports, shell, back};
  EstimateForm ato{kit, plan, pricing, reports, shell, back};
  BottomLine bottom{kit, reports};
  AdjustmentForm adjustment{kit, reports};
};

// The free takeoff on the same bench.
class AreasTest : public TakeoffTest {
 protected:
  void StartArea(const QString& name) {
    EnterItems();
    Enter(ato.Area, name);
  }
  void Line1(const QString& system, const QString& entry) {
    Enter(system);
    Enter(entry);
  }
  QStringList Areas() { return Lines(Project(QStringLiteral("ATOs/Areas.tamo"))); }
};

// The room line as it stands in a file.
inline QString Line(const QString& system, const QString& area, const QString& quantity,
                    const QString& unit) {
  return system.leftJustified(21) + area.leftJustified(11) + quantity.rightJustified(14) +
         QLatin1Char(' ') + unit;
}

// The area line as it stands in a file.
inline QString ALine(const QString& system, const QString& quantity, const QString& unit) {
  return system + quantity.rightJustified(35 - system.size()) + QLatin1Char(' ') + unit;
}

}  // namespace tamo::test
