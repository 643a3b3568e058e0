#pragma once

#include <QString>
#include <QStringList>
#include <functional>

#include "common/kit.h"
#include "export/systemsheet.h"
#include "pricing/pricingform.h"
#include "program/filechoice.h"

namespace tamo {

// The price library as a sheet for spreadsheets, and back.
class SystemSheets {
 public:
  // The form is used only once it is made.
  SystemSheets(const Kit& kit, PricingForm& pricing) : kit_(kit), pricing_(pricing) {}

  void Bind();  // to the entries of the form
  void Save();
  // Shows what the sheet would change and asks; a sheet with a wrong line is refused as a whole.
  void Take();

  FileChooser onChoose;  // none: nothing is saved or taken
  std::function<void(const QString& system)> onNewSystem;

 private:
  void Offer(const QString& name, const SystemSheet& sheet);
  bool Waits(const SystemSheet& sheet) const;

  const Kit kit_;
  PricingForm& pricing_;
};

}  // namespace tamo
