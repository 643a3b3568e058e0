#pragma once

#include "common/desk.h"
#include "common/files.h"
#include "common/kit.h"
#include "silentplatform.h"
#include "takeoff/rfsform.h"

namespace tamo::bench {

// Whoever the takeoff forms ask for something: it does nothing and takes no time.
class Nobody : public SilentPlatform,
               public PlanTools,
               public MissingSystemPricing,
               public TakeoffReportRefresh,
               public TakeoffExits,
               public MeasuredMarks {
 public:
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
  EntryMarks MarksOf(const std::vector<Measured>&, const EnteredLine&) override { return {}; }
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
