#pragma once

#include "common/desk.h"
#include "common/files.h"
#include "common/kit.h"
#include "takeoff/rfsform.h"

namespace tamo::bench {

// Whoever the takeoff forms ask for something: it does nothing and takes no time.
class Nobody : public Messages,
               public Printer,
               public Clipboard,
               public PlanTools,
               public MissingSystemPricing,
               public TakeoffReportRefresh,
               public TakeoffExits,
               public MeasuredMarks {
 public:
  void Tell(const QString&) override {}
  bool Ask(const QString&) override { return false; }
  void SetFont(const QString&, int) override {}
  void PrintLine(const QString&) override {}
  void EndPage() override {}
  bool BeginPrint(const QString&) override { return false; }
  void EndPrint() override {}
  void Clear() override {}
  void SetText(const QString&) override {}
  void SetToolMode(int) override {}
  void SetPenColour(const QString&) override {}
  void ResetMeasure() override {}
  void SaveIt() override {}
  void ClearDistance() override {}
  void ReleaseMode() override {}
  void DeleteKey() override {}
  QString ScaleText() const override { return {}; }
  void ShowWithName(const QString&) override {}
  void PrintReport() override {}
  void ShowMainForm() override {}
  void ShowProjectPanel() override {}
  void ShowOST() override {}
  EntryMarks MarksOf(const std::vector<Measured>&) override { return {}; }
  bool Reaches(const EntryMarks&) const override { return true; }
  void PutOn(const EntryMarks&, bool) override {}
};

// The room schedule alone, on a project that stands on the disk.
struct TakeoffStage {
  Disk& disk;
  SharedFields shared;
  Files files{disk};
  Nobody nobody;
  Desk desk{nobody};
  SystemClock clock;
  Platform platform{disk, clock, nobody, nobody, nobody, {}, {}, {}};
  Kit kit{desk, files, shared, platform};
  TakingBack steps{kit, nobody, nobody};
  RFSForm form{kit, nobody, nobody, nobody, nobody, steps};

  TakeoffStage(Disk& ofProject, const SharedFields& fields) : disk(ofProject), shared(fields) {}
};

}  // namespace tamo::bench
