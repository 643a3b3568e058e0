#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>

#include "planfiles.h"
#include "plans/comparison.h"
#include "plans/ostform.h"
#include "plans/sheettexts.h"
#include "program/program.h"

namespace tamo::bench {

// Somebody who works with a set of plans of many sheets: turns them, looks closer, measures on
// them, holds one against its former state, looks through the texts. It stays open all day, so one
// process reads all its sheets.
class PlanPlay {
 public:
  explicit PlanPlay(Program& program) : program_(program), set_(PlanPath("set.pdf")) {}

  void Open() {
    program_.OpenPlan(set_);
    Look();
  }

  // The next sheet. What else is done on it goes by its number since the morning.
  void Turn() {
    ++turned_;
    Do([this] { Viewer().TurnPage(page_ = page_ % Viewer().PageCount() + 1); });
    Look();
    GoCloser();
    if (turned_ % 2 == 0) Measure();
    if (turned_ % 20 == 0) Compare();
    if (turned_ % 25 == 0) LookThrough();
  }
  int Turned() const { return turned_; }

 private:
  PdfDraw& Viewer() { return program_.Viewer(); }
  template <typename Act>
  void Do(const Act& act) {
    program_.GetDesk().Dispatch(act);
  }

  // Until the sheet is there in full.
  void Look() {
    QElapsedTimer clock;
    for (clock.start(); clock.elapsed() < 5000 && !Viewer().Pictures().WaitUntilSharp(0);)
      QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
  }

  void GoCloser() {
    Do([this] {
      Viewer().SetZoom(60 + turned_ % 5 * 30);
      Viewer().SetViewValue(ViewPart::Horizontal, 300);
      Viewer().SetViewValue(ViewPart::Vertical, 300);
    });
    Look();
    Do([this] { Viewer().ScrollBy(200, 150); });
    Look();
    Do([this] { Viewer().SetZoom(25); });
    Look();
  }

  void Measure() {
    const double x = 300 + turned_ % 40 * 20;
    Do([&] { Viewer().DrawLine({x, 400}, {x + 180, 400}); });
    Viewer().Snap().Lines().Wait(5000);
    if (turned_ % 6 == 0) {
      Do([this] { Viewer().Undo(); });
      Do([this] { Viewer().Redo(); });
    }
    Do([this] { Viewer().PickTool(PlanTool::None); });
  }

  // The project's copy with the marks, and the plan as it came.
  void Compare() {
    if (Viewer().ShowsFile(set_)) return;
    Comparison& comparison = Viewer().Compared();
    Do([&] { comparison.Begin(set_, QString()); });
    comparison.Jobs().Settle(20000);
    Look();
    Do([&] { comparison.NextLayer(); });
    Look();
    Do([&] { comparison.End(); });
    Look();
  }

  // As the find bar does it.
  void LookThrough() {
    SheetTexts texts;
    texts.Want(Viewer().OpenedPlan(), Viewer().PageCount(), Viewer().Page());
    QElapsedTimer clock;
    for (clock.start(); clock.elapsed() < 10000 && !texts.Done(); texts.Take())
      QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
  }

  Program& program_;
  const QString set_;
  int turned_ = 0;
  int page_ = 1;
};

}  // namespace tamo::bench
