#pragma once

#include "pricing/pricingparts.h"

namespace tamo {

// Copy and paste within a run, export and import through files, and the printed page.
class SystemExchange {
 public:
  // `beforeImport` stores what is typed and not stored yet; `afterImport` is told that other
  // materials stand on the form.
  SystemExchange(const Kit& kit, const PricingParts& parts, std::function<void()> beforeImport,
                 std::function<void()> afterImport);

  void Copy();
  void Paste();
  void Export();
  void Import();
  void Print();

 private:
  void BindMenus();
  void BindPicker();
  void PressInFolders(Key& key);
  void ExportInto(const QString& folder);
  void Take(const SystemFile& system);
  void SaveImportedMaterial();

  const Kit kit_;
  const PricingParts p_;
  const std::function<void()> beforeImport_;
  const std::function<void()> afterImport_;
};

}  // namespace tamo
