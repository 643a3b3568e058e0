#include "pricing/directions.h"

namespace tamo {
namespace {

QString Other(const QString& tag, const char* one, const char* other) {
  return QString::fromLatin1(tag == QLatin1String(one) ? other : one);
}

}  // namespace

void Directions::TakeBlock(const MaterialBlock& block) {
  Forget();
  if (IsRatioTag(block.upoTag)) TakeRatio(block.upoTag, block.orderUnits);
  if (IsLaborTag(block.mnhrTag)) TakeLabor(block.mnhrTag);
}

void Directions::TakeRatio(const QString& tag, const QString& orderUnits) {
  ratio_ = tag;
  cameFor_ = orderUnits;
  came_ = true;
}

bool Directions::CameFor(const QString& orderUnits) const {
  return came_ && cameFor_.compare(orderUnits, Qt::CaseInsensitive) == 0;
}

QString Directions::RatioToStore(const Prompts& prompts, const PromptNames& names,
                                 const std::optional<QString>& standing, bool numberTyped) const {
  // A prompt that asks how many order units a takeoff unit takes is answered in these; whoever only
  // walks through a number that came with this order unit answers nothing.
  if (prompts.AsksHowManyPer(names.units) && (numberTyped || !CameFor(names.orderUnits)))
    return QString::fromLatin1(kOpu);
  if (!ratio_.isEmpty()) return ratio_;
  return standing ? RatioTagOfBlock(prompts, names, *standing) : RatioTagOfNewBlock(prompts, names);
}

QString Directions::LaborToStore(const Prompts& prompts, const PromptNames& names,
                                 const std::optional<QString>& standing) const {
  if (!labor_.isEmpty()) return labor_;
  const QString told = standing ? QString() : LaborTagOfNewBlock(prompts, names);
  return told.isEmpty() ? LaborTagOfBlock(prompts) : told;
}

void Directions::TurnRatio(const Prompts& prompts, const PromptNames& names) {
  ratio_ = Other(ratio_.isEmpty() ? RatioTagToTurn(prompts, names) : ratio_, kUpo, kOpu);
}

void Directions::TurnLabor(const Prompts& prompts, const PromptNames& names,
                           const std::optional<QString>& standing) {
  // A tag of an older file may be in capitals.
  const bool inCapitals =
      labor_.isEmpty() && standing && standing->toUpper() == QLatin1String("UPM");
  labor_ = Other(inCapitals ? QString::fromLatin1(kUpm) : LaborToStore(prompts, names, standing),
                 kUpm, kMpu);
}

}  // namespace tamo
