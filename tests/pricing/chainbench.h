#pragma once

#include <gtest/gtest.h>

#include "pricing/pricingparts.h"
#include "pricing/pricingroom.h"
#include "support/ramdisk.h"

namespace tamo::test {

// The controls of the price library on a bare form, with a library in memory: whatever works on
// them is tried here without the chains of the others.
class ChainBench : public Form,
                   public PricingMenus,
                   public SystemControls,
                   public MaterialControls,
                   public LookControls,
                   public MarkupControls,
                   public ExchangeControls {
 public:
  // The window, a library folder, and a desk that outlives both.
  explicit ChainBench(Kit benchKit)
      : Form(benchKit.desk, QStringLiteral("Bench")),
        PricingMenus(static_cast<Form&>(*this)),
        SystemControls(static_cast<Form&>(*this)),
        MaterialControls(static_cast<Form&>(*this)),
        LookControls(static_cast<Form&>(*this), FramePricing),
        MarkupControls(static_cast<Form&>(*this)),
        ExchangeControls(static_cast<Form&>(*this)),
        kit(benchKit) {
    Form::Show();
    FramePricing.Show();
    LandMFrame.Show();
  }

  const Kit kit;
  QString lineColor;
  OrderedList rows{*this, "System"};
  SystemBlocks blocks{rows, MaterialList};
  MaterialInWork material{kit, *this, *this, blocks};
  LaborPrice price{kit.desk, *this, *this, *this, blocks};
  OpenSystem open{kit, *this, *this, blocks, material, price, lineColor};
  Vocabulary vocabulary{kit, *this, *this};
};

struct OnTheBench : ::testing::Test {
  OnTheBench() {
    shared.DataPath = QStringLiteral("/home/Tamo/");
    shared.Separator = QStringLiteral("/");
    disk.MakeFolder(QStringLiteral("/home/Tamo"));
    disk.MakeFolder(QStringLiteral("/home/Tamo/Systems"));
  }

  RamDisk disk;
  FixedClock clock;
  ScriptedMessages messages;
  RecordingPrinter printer;
  RecordingClipboard clipboard;
  QString home = QStringLiteral("/home");
  Platform platform{disk, clock, messages, printer, clipboard, home, home, home};
  Desk desk{messages};
  Files files{disk};
  SharedFields shared;
  ChainBench bench{Kit{desk, files, shared, platform}};
};

}  // namespace tamo::test
