#pragma once

#include <QTimer>

#include "plans/sheettexts.h"
#include "windows/display.h"
#include "windows/findplace.h"
#include "windows/plancanvas.h"

namespace tamo {

// The text of a plan's sheets, to be looked through. The sheets are read behind the window while
// the bar is open, from the one in sight on; what is found is framed on the sheet.
class FindOnPlan : public FindPlace {
 public:
  FindOnPlan(PdfDraw& viewer, PlanCanvas& canvas, Display& display);

  bool Visible() const override { return canvas_.isVisible(); }
  ListRows Rows() const override { return {rows_}; }
  void Mark(const QString& text) override;
  void GoTo(int row) override;
  QString Where(int row) const override;
  QString Rest() const override;
  QString Holding(int rows) const override;

 private:
  void Begin();
  void TakeMore();
  std::vector<FoundBox> BoxesOn(int page) const;

  PdfDraw& viewer_;
  PlanCanvas& canvas_;
  Display& display_;
  SheetTexts texts_;
  QTimer looks_;
  QStringList rows_;
  QString text_;
  int row_ = -1;
};

}  // namespace tamo
