#pragma once

#include <QString>
#include <optional>

#include "pricing/prompts.h"
#include "records/materialblock.h"

namespace tamo {

// Which way the two conversion numbers of the material in work read: takeoff units per order unit
// ("upo") or the other way round ("opu"), takeoff units per manhour ("upm") or the other way round
// ("mpu").
//
// A direction is in force that the library or the system holds, or that the estimator turned to; it
// is the one that is stored. A material that is typed new has none: its prompt is then read by its
// first and last letters.
class Directions {
 public:
  // A material that is typed new.
  void Forget() { *this = Directions(); }
  // A material of the system; a tag that is none gives no direction.
  void TakeBlock(const MaterialBlock& block);
  // The numbers of a material file.
  void TakeRatio(const QString& tag, const QString& orderUnits);
  void TakeLabor(const QString& tag) { labor_ = tag; }

  const QString& Ratio() const { return ratio_; }  // in force; "" for none
  const QString& Labor() const { return labor_; }
  // The direction came with the number, for this order unit.
  bool CameFor(const QString& orderUnits) const;

  // What is stored with the numbers when the material is finished now; never "". `standing` is the
  // tag of the block that the material has in the system ("" for a place that was inserted),
  // nullopt for a new material; `numberTyped` that the number in UPO is the estimator's own.
  QString RatioToStore(const Prompts& prompts, const PromptNames& names,
                       const std::optional<QString>& standing, bool numberTyped) const;
  QString LaborToStore(const Prompts& prompts, const PromptNames& names,
                       const std::optional<QString>& standing) const;
  // The other direction than the one in force, or the one that the prompt tells, is in force from
  // now on.
  void TurnRatio(const Prompts& prompts, const PromptNames& names);
  void TurnLabor(const Prompts& prompts, const PromptNames& names,
                 const std::optional<QString>& standing);

 private:
  QString ratio_;
  QString labor_;
  QString cameFor_;  // the order unit that the ratio came with
  bool came_ = false;
};

}  // namespace tamo
