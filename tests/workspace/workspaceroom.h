#pragma once

#include <gtest/gtest.h>

#include "support/room.h"
#include "workspace/tamoform.h"

namespace tamo::test {

// The main form and the settings on a data folder of their own, with the rest of the program
// recorded.
struct WindowsDouble : FrontWindows {
  void EnterMode(int mode) override { asked += QStringLiteral("mode %1").arg(mode); }
  void BringUpShell() override { asked += QStringLiteral("shell"); }
  void ShowMainForm() override { asked += QStringLiteral("show main"); }
  void HideMainForm() override { asked += QStringLiteral("hide main"); }
  void ShowTitles() override {}
  void AskForEstimatorNumber() override { asked += QStringLiteral("estimator"); }
  QStringList asked;
};

struct PlanDouble : PlanOfProject {
  Record Fields() const override { return fields; }
  void SetPlanLocation(const QString& path) override { fields.planLocation = path; }
  void SetPageText(const QString& text) override { fields.pageText = text; }
  void SetZoomLevel(const QString& text) override { fields.zoomLevel = text; }
  void SetScale(const QString& scale1, const QString& scale2, const QString& text5) override {
    fields.scale1 = scale1;
    fields.scale2 = scale2;
    fields.text5 = text5;
  }
  void SetProjectName(const QString& name) override { projectName = name; }
  int ViewValue(int index) const override { return view[index]; }
  void SetViewValue(int index, int value) override { view[index] = value; }
  void TurnToPage(int page) override { asked += QStringLiteral("page %1").arg(page); }
  void SetZoomByLevel(const QString& level) override { asked += QStringLiteral("zoom ") + level; }
  void LoadFN() override { asked += QStringLiteral("copy"); }
  void LoadPDF() override { asked += QStringLiteral("plan"); }
  void OpenBlank() override { asked += QStringLiteral("blank"); }
  void LoadPlanNotes() override {}
  void HideBrowser() override {}

  Record fields;
  QString projectName;
  int view[3] = {};
  QStringList asked;
};

struct FollowersDouble : ProjectFollowers {
  void InitPricing() override { ++pricing; }
  void RefreshPricingList() override { ++lists; }
  void PrintReport() override { ++reports; }
  void ClearReports() override { ++cleared; }
  void KeepDeleted(const QString& id, const QString&) override { keptDeleted += id; }
  void ForgetProject() override { ++forgotten; }
  void ShowReadOnly(bool is) override { readOnly = is; }
  QStringList keptDeleted;
  bool readOnly = false;
  int pricing = 0, lists = 0, reports = 0, cleared = 0, forgotten = 0;
};

class WorkspaceRoom : public ::testing::Test, public FormRoom {
 protected:
  void Write(const char* name, const QStringList& lines) const { PutLines(Path(name), lines); }
  QStringList Lines(const char* name) const { return WholeLinesOf(Path(name)); }
  void Run(const std::function<void()>& event) { desk.Dispatch(event); }
  // Types over the field and presses Enter, as an estimator does.
  void Enter(TextField& field, const QString& text) {
    desk.UserFocus(field);
    field.SelectAll();
    desk.TypeText(field, text);
    desk.PressKey(field, Key::Named(Key::Name::Enter));
  }

  WindowsDouble windows;
  PlanDouble plan;
  FollowersDouble followers;
};

}  // namespace tamo::test
