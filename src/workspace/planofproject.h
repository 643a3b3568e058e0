#pragma once

#include <QString>

namespace tamo {

// What a project's record keeps of the plan, and what opening and closing a project asks of the
// plan form.
class PlanOfProject {
 public:
  virtual ~PlanOfProject() = default;

  // The fields of the record that stand on the plan form. Setting them is not a user's change.
  struct Record {
    QString planLocation;  // full path, "" for none
    QString pageText;
    QString zoomLevel;
    QString scale1;
    QString scale2;
    QString text5;
  };
  virtual Record Fields() const = 0;
  virtual void SetPlanLocation(const QString& path) = 0;
  virtual void SetPageText(const QString& text) = 0;
  virtual void SetZoomLevel(const QString& text) = 0;
  virtual void SetScale(const QString& scale1, const QString& scale2, const QString& text5) = 0;
  virtual void SetProjectName(const QString& name) = 0;

  virtual int ViewValue(int index) const = 0;  // 0 horizontal, 1 vertical position, 2 rotation
  virtual void SetViewValue(int index, int value) = 0;
  virtual void TurnToPage(int page) = 0;
  virtual void SetZoomByLevel(const QString& level) = 0;

  virtual void LoadFN() = 0;
  virtual void LoadPDF() = 0;
  virtual void OpenBlank() = 0;
  virtual void LoadPlanNotes() = 0;
  virtual void HideBrowser() = 0;
};

}  // namespace tamo
