#pragma once

#include <array>

#include "pricing/materialcontrols.h"
#include "records/materialfile.h"

namespace tamo {

// The seven fields of the material in work, and which of them the estimator typed himself: the
// library never fills over these, also when the same digits were typed that stood there.
class MaterialFields {
 public:
  // The fields that the library can fill, all but the name.
  enum Fillable : size_t { kOrderUnits, kPrice, kUpo, kMnhrPO, kWaste, kWageRate, kFillables };

  explicit MaterialFields(MaterialControls& controls);
  // Takes note of the keys that are pressed in the fields. After the fields have their steps.
  void WatchKeys();

  void Clear();
  bool AllEmpty() const;  // but for the name
  // What stands in the field is the estimator's own; an empty field is nobody's.
  bool Typed(Fillable field) const;
  void Take(const MaterialBlock& block);
  // The block of the fields, with no tags.
  MaterialBlock Block() const;
  // What a material file gives, but for fields that were typed. False when nothing was filled: the
  // field was typed in, or line `line` (from 1) was not reached.
  bool FillFrom(const MaterialFile& file, int line, Fillable field, const QString& text);
  // Another spelling of the same, made by the program.
  void Respell(Fillable field, const QString& text);
  // What stands there is no longer what was given: another number is on its way.
  void ForgetGiven(Fillable field) { given_[field].clear(); }

 private:
  void Fill(Fillable field, const QString& text);

  MaterialControls& controls_;
  const std::array<TextField*, kFillables> fields_;
  std::array<QString, kFillables> given_;  // by the program
  std::array<bool, kFillables> typed_{};   // keys were pressed since
};

}  // namespace tamo
