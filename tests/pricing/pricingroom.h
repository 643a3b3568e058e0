#pragma once

#include <functional>

#include "common/desk.h"
#include "common/files.h"
#include "common/kit.h"
#include "common/paths.h"
#include "common/textlines.h"
#include "pricing/pricingform.h"
#include "support/room.h"

namespace tamo::test {

struct CountingRefresh : ReportRefresh {
  void PrintReport() override {
    ++reports;
    if (onReport) onReport();
  }
  void DisableProjectFileEntry() override { ++disabled; }
  int reports = 0;
  int disabled = 0;
  std::function<void()> onReport;
};

struct CountingSettings : SettingsReader {
  void LoadSettings() override {
    ++loads;
    if (onLoad) onLoad();
  }
  int loads = 0;
  std::function<void()> onLoad;
};

struct CountingSeed : ProjectNumberSeed {
  void SeedProjectNumber() override { ++seeds; }
  int seeds = 0;
};

// A Pricing form on a data folder of its own, and a person at its keyboard.
class PricingRoom : public FormRoom {
 public:
  PricingRoom();

  // --- the person ---
  void Open();                           // Unit Pricing of the shell
  void Enter(const QString& text = {});  // text over the focused field's, then Enter
  void Type(const QString& text);
  void Press(Key::Name key);
  void Click(Control& control) { desk.ClickInto(control); }
  void Choose(MenuEntry& entry) { desk.ChooseMenu(entry); }
  void Row(OrderedList& list, int row) { desk.ClickRow(list, row); }
  void Go(Control& control) { desk.UserFocus(control); }
  void EnterAll(const QStringList& texts);
  // A system of the name, in SF, priced by labor and material; the focus is then in Material.
  void NewSystem(const QString& name, const QString& units = QStringLiteral("SF"));
  QString FocusName() const;

  // --- the disk ---
  QString Path(const QString& relative) const { return data + relative; }
  void Write(const QString& relative, const QStringList& lines);
  QStringList Lines(const QString& relative);
  QByteArray Bytes(const QString& relative);
  bool Exists(const QString& relative) const;
  void OpenProject(const QString& id);
  // A priced system in the library, and its name in the list.
  void Library(const QString& name, const QString& units, const QString& price,
               const QStringList& blocks = {});

  QString data;
  CountingRefresh refresh;
  CountingSettings settings;
  CountingSeed seed;
  PricingForm form{kit, refresh, settings, seed};
  Form other{desk, QStringLiteral("Tamo")};
};

// Twelve rows of one material.
QStringList Block(const QString& name, const QString& orderUnits, const QString& price,
                  const QString& upo, const QString& upoTag, const QString& mnhrPO,
                  const QString& mnhrTag, const QString& waste, const QString& wage);
QStringList Stud();      // LF, opu .75, upm 42
QStringList Drywall();   // SHT, upo 16, upm 38
QStringList Compound();  // PL, upo 460, mpu .008

}  // namespace tamo::test
