#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QRegularExpression>
#include <set>

#include "common/failure.h"
#include "common/kit.h"
#include "plans/ostform.h"
#include "plans/pdfdraw.h"
#include "support/fakeplanengine.h"
#include "support/room.h"

namespace tamo::test {

// Keeps the record in memory, with the guards of the real one that matter to the plan.
class RecordingKeeper : public ProjectKeeper {
 public:
  struct Record {
    QString planLocation, pageText, zoomLevel, scale1, scale2, text5;
  };

  explicit RecordingKeeper(SharedFields& shared) : shared_(shared) {}

  void SaveJobNFO() override {
    ++asked;
    if (shared_.LoadingJobNFO == QLatin1String("True")) return;
    ++saves;
    record = {form->PlanLocation.Text(), form->PageText.Text(), form->ZoomLevel.Text(),
              form->Scale1.Text(),       form->Scale2.Text(),   form->Text5.Text()};
  }
  void LoadJobNFO(const QString& picked) override {
    loads << picked;
    if (onLoad) onLoad(picked);
  }
  void InitMain() override { driveByAtInit = shared_.DriveBy; }

  OSTForm* form = nullptr;
  int asked = 0;
  int saves = 0;
  Record record;
  QStringList loads;
  QString driveByAtInit;
  std::function<void(const QString& picked)> onLoad;

 private:
  SharedFields& shared_;
};

class RecordingTakeoff : public TakeoffFields {
 public:
  bool FormVisible(Field) const override { return visible; }
  void SetText(Field field, const QString& text) override {
    calls << Name(field) + QLatin1Char('=') + text;
  }
  bool TakeArea(Field field, const QString& squareFeet, QString& words) override {
    calls << Name(field) + QStringLiteral(" takes ") + squareFeet;
    words = areaWords;
    return areaWords.isEmpty();
  }
  void FocusOn(Field field) override { calls << QStringLiteral("focus ") + Name(field); }

  static QString Name(Field field) {
    static const char* const names[] = {"eLength", "Hite", "Length", "How"};
    return QLatin1String(names[static_cast<int>(field)]);
  }
  QStringList Take() { return std::exchange(calls, {}); }

  bool visible = true;
  QString areaWords;  // not empty: an area is refused with them
  QStringList calls;
};

class OstTest : public ::testing::Test, public FormRoom {
 protected:
  OstTest() {
    shared.DataPath = Path("Tamo/");
    shared.JobID = QStringLiteral("00-2112002");
    shared.JobName = QStringLiteral("Clinic");
    shared.GUIText = QStringLiteral("2");
    for (const char* folder :
         {"program", "Tamo/Plans", "Tamo/Projects/00-2112002/Plans", "Jobs", "Other"})
      QDir().mkpath(Path(folder));
    for (const char* file : {"program/Blank.pdf", "program/About.pdf", "Jobs/a.pdf"}) Put(file);
    keeper.form = &ost;
    ost.Load();
    ost.Show();
    engine.calls.clear();
    keeper.saves = keeper.asked = 0;
  }

  void Put(const char* name, const QByteArray& bytes = "%PDF-1.4\n") {
    int handle = -1;
    ASSERT_EQ(disk.OpenNew(Path(name), handle), kNoError);
    disk.Write(handle, bytes);
    disk.Close(handle);
  }
  QString Content(const char* name) {
    QByteArray bytes;
    return disk.Read(Path(name), bytes) == kNoError ? QString::fromUtf8(bytes)
                                                    : QStringLiteral("(no file)");
  }
  bool OnDisk(const char* name) { return disk.Exists(Path(name)); }

  void Choose(const char* entry) {
    MenuEntry* found = ost.FindMenu(QString::fromUtf8(entry));
    ASSERT_NE(found, nullptr) << entry;
    desk.ChooseMenu(*found);
  }
  void Click(Control& control) { desk.ClickInto(control); }
  // Types over the field's text and presses Enter.
  void Enter(TextField& field, const char* text) {
    desk.UserFocus(field);
    field.SelectAll();
    if (*text == '\0') desk.PressKey(field, Key::Named(Key::Name::Backspace));
    desk.TypeText(field, QString::fromUtf8(text));
    desk.PressKey(field, Key::Named(Key::Name::Enter));
  }
  void Pick(const char* file, bool twice = false) { desk.Pick(ost.File1, Path(file), twice); }
  Swatch& SwatchNamed(const char* name) {
    return dynamic_cast<Swatch&>(*ost.Find(QString::fromUtf8(name)));
  }
  std::string Shown() { return viewer.ShownFile().toStdString(); }
  std::string Location() { return ost.PlanLocation.Text().toStdString(); }
  std::string PathText(const char* name) { return Path(name).toStdString(); }

  FakePlanEngine engine;
  PdfDraw viewer{files, engine};
  RecordingKeeper keeper{shared};
  RecordingTakeoff takeoff;
  OSTForm ost{kit, viewer, keeper, takeoff};
};

}  // namespace tamo::test
