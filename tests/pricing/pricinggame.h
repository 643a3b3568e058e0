#pragma once

#include "pricing/pricingform.h"
#include "pricing/pricingroom.h"
#include "support/ramdisk.h"
#include "support/randomplayer.h"

namespace tamo::test {

// The price library under random hands, on a library in memory, and what must hold of it after each
// key whatever was done.
class PricingGame : public Game {
 public:
  explicit PricingGame(bool withProject);

  Desk& GetDesk() override { return desk_; }
  Form& Played() override { return form; }
  std::vector<Deed> Doors() override;
  std::vector<Deed> Deeds() override;
  QString Broken() override;
  QStringList SetUp() const override { return setUp_; }

 private:
  void PutLibrary();
  void WatchDeletions();
  void RightSelect(int row);
  QString BrokenPlaces() const;
  QString BrokenFile(const QString& path);
  QString BrokenSystem(const QString& path, const SystemFile& before, const SystemFile& now);
  QString BrokenMaterial(const QString& path);
  QString BrokenPrice(bool saved);
  QString BrokenPrompt() const;

  RamDisk disk_;
  FixedClock clock_;
  ScriptedMessages messages_;
  RecordingPrinter printer_;
  RecordingClipboard clipboard_;
  Platform platform_{disk_,
                     clock_,
                     messages_,
                     printer_,
                     clipboard_,
                     QStringLiteral("/home"),
                     QStringLiteral("/home"),
                     QStringLiteral("/home")};
  Desk desk_{messages_};
  Files files_{disk_};
  SharedFields shared_;
  Kit kit_{desk_, files_, shared_, platform_};
  CountingRefresh refresh_;
  CountingSettings settings_;
  CountingSeed seed_;

 public:
  PricingForm form{kit_, refresh_, settings_, seed_};

 private:
  Form other_{desk_, QStringLiteral("Tamo")};
  QStringList setUp_;
  QHash<QString, SystemFile> known_;  // the systems as they were last seen on the disk
  QStringList pricedRows_;            // the rows of which EUP was last the sum
  QStringList pricedMarkups_;
  MaterialBlock wouldStore_;  // had the material been finished before this key
  bool replaces_ = false;     // this key deletes, pastes or imports
};

}  // namespace tamo::test
