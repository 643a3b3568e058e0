#pragma once

#include <QString>
#include <QStringList>

namespace tamo {

// A unit that counts things instead of measuring them. The short test knows EA and CT, the long
// one EACH and COUNT as well; which prompt asks which of the two is as it stands, and tests hold
// it.
bool IsCountUnit(const QString& unit);
bool IsCountUnitLong(const QString& unit);

// The names that the prompts are made of.
struct PromptNames {
  QString units;        // the takeoff unit of the system
  QString orderUnits;   // the order unit of the material
  QString description;  // the system
  QString material;
};

// The wording around the two conversion numbers. It is shown, and it carries state: the direction
// of a number that was typed new is read off its prompt.
struct Prompts {
  QString labelPrice;
  QString labelUPO;
  QString label5;  // the hint under UPO
  QString labelMnhr;
  QString label8;  // the hint under MnhrPO
  QString hoverUPO;
  QString hoverMnhrPO;

  // The takeoff unit was entered.
  void AfterUnits(const PromptNames& names);
  // Material got the focus.
  void AtMaterial(const PromptNames& names);
  // Price got the focus. An order unit that counts is asked for by the takeoff unit.
  void AtPrice(const PromptNames& names);
  void CostPer(const PromptNames& names);  // the prompt of the price alone
  // Enter in OrderUnits: the order unit is put behind the prompt as it stands.
  void AppendOrderUnits(const PromptNames& names);
  // A tag line of a material file was read.
  void AfterFileRatioTag(const PromptNames& names, const QString& tag);
  void AfterFileLaborTag(const PromptNames& names, const QString& tag);
  // A block is shown.
  void ShowRatio(const PromptNames& names, const QString& tag);
  void ShowLabor(const PromptNames& names, const QString& tag);
  // The wording by the two tags; without a direction (a tag that is none) by the end of labelUPO.
  void SetUpoUpm(const PromptNames& names, const QString& ratioTag, const QString& laborTag);
  // A toggle of a number that no block holds yet: the wording of the new direction.
  void TurnRatio(const PromptNames& names, const QString& newTag);
  void TurnLabor(const PromptNames& names, const QString& newTag);

  // --- what an estimator reads ---
  // "How many per SF:", the prompt of an order unit that counts.
  bool AsksHowManyPer(const QString& units) const;
  // "Manhours per SF", whatever letter the takeoff unit begins with.
  bool AsksForManhours() const;
};

// --- the tags, read off the prompts ---

// A new block. The labor tag is "" when the prompt tells none.
QString RatioTagOfNewBlock(const Prompts& prompts, const PromptNames& names);
QString LaborTagOfNewBlock(const Prompts& prompts, const PromptNames& names);

// A block that is there: its ratio tag is kept when the prompt ends in neither unit. A place that
// was only inserted has none to keep and is taken as a new block.
QString RatioTagOfBlock(const Prompts& prompts, const PromptNames& names, const QString& standing);
QString LaborTagOfBlock(const Prompts& prompts);

// What a toggle turns from while no direction is in force.
QString RatioTagToTurn(const Prompts& prompts, const PromptNames& names);

// The message for an order unit that is the takeoff unit of its own system, whatever the case; ""
// when it may be used.
QString ReservedTerm(const PromptNames& names);

}  // namespace tamo
