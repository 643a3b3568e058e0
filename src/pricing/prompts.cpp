#include "pricing/prompts.h"

#include "common/columns.h"
#include "records/materialblock.h"

namespace tamo {
namespace {

const QString kUse = QStringLiteral("Leave blank and press Enter to use ");
const QString kHowMany = QStringLiteral("How many ");
const QString kHowManyPer = QStringLiteral("How many per ");
const QString kHowManyPerManhour = QStringLiteral("How many per Manhour:");
const QString kPer = QStringLiteral(" per ");
const QString kOf = QStringLiteral(" of ");
const QString kSeveralPer = QStringLiteral("(s) per ");
const QString kPerManhour = QStringLiteral(" per Manhour:");

bool Is(const QString& tag, const char* other) {
  return tag == QLatin1String(other);
}

// U per Manhour, or how many for a unit that counts.
QString UnitsPerManhour(const PromptNames& n) {
  return IsCountUnit(n.units) ? kHowManyPerManhour : n.units + kPerManhour;
}

}  // namespace

bool IsCountUnit(const QString& unit) {
  const QString upper = unit.toUpper();
  return upper == QLatin1String("EA") || upper == QLatin1String("CT");
}

bool IsCountUnitLong(const QString& unit) {
  const QString upper = unit.toUpper();
  return IsCountUnit(unit) || upper == QLatin1String("EACH") || upper == QLatin1String("COUNT");
}

void Prompts::AfterUnits(const PromptNames& n) {
  label5 = kUse + n.orderUnits + kPer + n.units;
  labelUPO = IsCountUnit(n.units) ? kHowManyPer + n.orderUnits : n.units + kPer + n.orderUnits;
  labelMnhr = UnitsPerManhour(n);
  // No blank between "per" and the unit. A test holds it.
  label8 = QStringLiteral("Leave blank and press Enter to use manhours per") + n.units +
           QLatin1Char(':');
}

void Prompts::AtMaterial(const PromptNames& n) {
  label5 = kUse + n.orderUnits + kSeveralPer + n.units;
  label8 = kUse + QStringLiteral("Manhours per ") + n.units;
}

void Prompts::CostPer(const PromptNames& n) {
  labelPrice = QStringLiteral("Cost per ") + n.orderUnits + QLatin1Char(':');
}

void Prompts::AtPrice(const PromptNames& n) {
  CostPer(n);
  if (!IsCountUnitLong(n.orderUnits)) return;
  labelUPO = kHowManyPer + n.units + QLatin1Char(':');
  label5 = kUse + n.units + kPer + n.orderUnits;
}

void Prompts::AppendOrderUnits(const PromptNames& n) {
  labelUPO += n.orderUnits;
}

void Prompts::AfterFileRatioTag(const PromptNames& n, const QString& tag) {
  if (Is(tag, kUpo))
    labelUPO =
        (IsCountUnitLong(n.units) ? kHowManyPer + n.orderUnits : n.units + kPer + n.orderUnits) +
        QLatin1Char(':');
  if (Is(tag, kOpu))
    labelUPO = (IsCountUnitLong(n.orderUnits) ? kHowManyPer + n.units
                                              : n.orderUnits + kSeveralPer + n.units) +
               QLatin1Char(':');
}

void Prompts::AfterFileLaborTag(const PromptNames& n, const QString& tag) {
  if (Is(tag, kUpm)) labelMnhr = UnitsPerManhour(n);
  if (Is(tag, kMpu)) labelMnhr = QStringLiteral("Manhours per ") + n.units + QLatin1Char(':');
}

void Prompts::ShowRatio(const PromptNames& n, const QString& tag) {
  if (Is(tag, kUpo)) {
    labelUPO =
        (IsCountUnitLong(n.units) ? kHowManyPer + n.orderUnits : n.units + kPer + n.orderUnits) +
        QLatin1Char(':');
    label5 = kUse + n.orderUnits + kSeveralPer + n.units;
  }
  if (Is(tag, kOpu)) {
    labelUPO = IsCountUnitLong(n.orderUnits)
                   ? kHowManyPer + n.units
                   : n.orderUnits + kSeveralPer + n.units + QLatin1Char(':');
    label5 = kUse + (IsCountUnitLong(n.units) ? kHowManyPer : n.units + kPer) + n.orderUnits;
  }
}

void Prompts::ShowLabor(const PromptNames& n, const QString& tag) {
  if (Is(tag, kMpu)) {
    labelMnhr = QStringLiteral("Manhours per ") + n.units + QLatin1Char(':');
    label8 = kUse + (IsCountUnit(n.units) ? QStringLiteral("How many") : n.units) +
             QStringLiteral(" per Manhour");
  }
  if (Is(tag, kUpm)) {
    labelMnhr = UnitsPerManhour(n);
    label8 = kUse + QStringLiteral("Manhours per ") + n.units;
  }
}

void Prompts::SetUpoUpm(const PromptNames& n, const QString& ratioTag, const QString& laborTag) {
  const bool given = IsRatioTag(ratioTag);
  if (TrimmedBlanks(labelUPO).isEmpty()) labelUPO = kHowManyPer + n.orderUnits;
  if (TrimmedBlanks(labelMnhr).isEmpty()) labelMnhr = QStringLiteral("How many per manhour");
  if (Is(ratioTag, kUpo) || (!given && labelUPO.endsWith(n.orderUnits))) TurnRatio(n, kUpo);
  // The end is compared with the system's name, not with its unit. A test holds it.
  if (Is(ratioTag, kOpu) || (!given && labelUPO.endsWith(n.description))) {
    labelUPO = kHowMany + n.orderUnits + kSeveralPer + n.units;
    hoverUPO = kHowMany + n.orderUnits + QStringLiteral("(s) of ") + n.material + kPer + n.units +
               kOf + n.description;
    label5 = kUse + n.units + kPer + n.orderUnits;
  }
  if (IsCountUnitLong(n.units) && Is(ratioTag, kOpu)) {
    TurnRatio(n, kOpu);
    labelUPO += QLatin1Char(':');
    label5 = kUse + n.units + kSeveralPer + n.orderUnits;
  }
  if (IsCountUnitLong(n.units) && Is(ratioTag, kUpo)) {
    labelMnhr = kHowManyPerManhour;
    labelUPO = kHowMany + n.description + kPer + n.orderUnits + QLatin1Char(':');
    hoverUPO = kHowMany + n.description + kSeveralPer + n.orderUnits + kOf + n.material;
  }
  if (Is(laborTag, kMpu)) {
    labelMnhr = QStringLiteral("Manhours per ") + n.units + kOf + n.description + QLatin1Char(':');
    label8 = kUse + QStringLiteral("how many ") + (IsCountUnit(n.units) ? n.description : n.units) +
             QStringLiteral(" per Manhour");
    hoverMnhrPO = QStringLiteral("How many manhours per ") + n.units + kOf + n.description;
  }
  if (Is(laborTag, kUpm)) {
    labelMnhr = UnitsPerManhour(n);
    hoverMnhrPO = kHowMany + n.units + kOf + n.description + QStringLiteral(" per manhour:");
    label8 = kUse + QStringLiteral("Manhours per ") + n.units;
  }
}

void Prompts::TurnRatio(const PromptNames& n, const QString& newTag) {
  if (Is(newTag, kUpo)) {
    labelUPO = kHowMany + n.units + kPer + n.orderUnits;
    hoverUPO = kHowMany + n.units + kOf + n.description + kPer + n.orderUnits + kOf + n.material;
    label5 = kUse + n.orderUnits + kSeveralPer + n.units;
  } else {
    labelUPO = kHowMany + n.orderUnits + kSeveralPer + n.units + QLatin1Char(' ') + n.description;
    hoverUPO = kHowMany + n.orderUnits + QStringLiteral("(s) of ") + n.material + kPer + n.units +
               QLatin1Char(' ') + n.description;
    label5 = kUse + n.units + kPer + n.orderUnits;
  }
}

// The hint is the same for both directions. A test holds it.
void Prompts::TurnLabor(const PromptNames& n, const QString& newTag) {
  labelMnhr = Is(newTag, kMpu) ? QStringLiteral("Manhours per ") + n.units + QLatin1Char(':')
                               : UnitsPerManhour(n);
  label8 = kUse + (IsCountUnit(n.units) ? QStringLiteral("How many") : n.units) +
           QStringLiteral(" per manhour");
}

bool Prompts::AsksHowManyPer(const QString& units) const {
  return labelUPO == kHowManyPer + units + QLatin1Char(':');
}

bool Prompts::AsksForManhours() const {
  return labelMnhr.startsWith(QLatin1String("Manhours per"));
}

QString RatioTagOfNewBlock(const Prompts& prompts, const PromptNames& n) {
  const QString& label = prompts.labelUPO;
  const bool upo = label.startsWith(n.units) ||
                   (label.size() > 8 && label.startsWith(QLatin1String("How many")));
  return QString::fromLatin1(upo ? kUpo : kOpu);
}

QString LaborTagOfNewBlock(const Prompts& prompts, const PromptNames& n) {
  const QString& label = prompts.labelMnhr;
  if (prompts.AsksForManhours()) return QString::fromLatin1(kMpu);
  if (label.endsWith(QLatin1String("Manhour:")) || label.startsWith(QLatin1String("How many")) ||
      (!n.units.isEmpty() && label.startsWith(n.units)))
    return QString::fromLatin1(kUpm);
  return {};
}

QString RatioTagOfBlock(const Prompts& prompts, const PromptNames& n, const QString& standing) {
  if (prompts.labelUPO.endsWith(n.orderUnits)) return QString::fromLatin1(kUpo);
  if (prompts.labelUPO.endsWith(n.units)) return QString::fromLatin1(kOpu);
  return standing.isEmpty() ? RatioTagOfNewBlock(prompts, n) : standing;
}

QString LaborTagOfBlock(const Prompts& prompts) {
  const bool upm =
      !prompts.AsksForManhours() && prompts.labelMnhr.endsWith(QLatin1String("Manhour:"));
  return QString::fromLatin1(upm ? kUpm : kMpu);
}

QString RatioTagToTurn(const Prompts& prompts, const PromptNames& n) {
  if (prompts.AsksHowManyPer(n.units)) return QString::fromLatin1(kOpu);
  return RatioTagOfBlock(prompts, n, QString());
}

QString ReservedTerm(const PromptNames& n) {
  if (n.orderUnits.toUpper() != n.units.toUpper()) return {};
  return QStringLiteral("The term ") + QLatin1Char('"') + n.orderUnits + QLatin1Char('"') +
         QStringLiteral(" Can't be used.\r\n\r\n") + n.orderUnits +
         QStringLiteral(" is being used as the unit for ") + n.description;
}

}  // namespace tamo
