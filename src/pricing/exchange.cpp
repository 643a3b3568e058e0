#include "pricing/exchange.h"

#include <algorithm>

#include "common/columns.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "common/paths.h"
#include "common/textlines.h"
#include "records/materialblock.h"

namespace tamo {
namespace {

constexpr int kHeadLines = 7;  // name, unit, price, colour, three empty lines
constexpr int kMeantRows = 9;  // of a block; the spare ones may be cut off at the file's end

ImportedSystem Refused(const QString& fileName, const QString& why) {
  ImportedSystem none;
  none.refusal = QStringLiteral("%1 can't be imported: %2 Nothing was changed.").arg(fileName, why);
  return none;
}

bool HoldsControls(const QString& text) {
  return std::any_of(text.cbegin(), text.cend(), [](QChar c) {
    return (c < QChar(32) && c != QLatin1Char('\t') && c != QLatin1Char('\r') &&
            c != QLatin1Char('\n')) ||
           c == QChar(127) || c == QChar(0xFFFD);
  });
}

// Why a material of the file can't be taken, "" when it can.
QString BlockRefusal(const MaterialBlock& block) {
  QString name = NameRefusal(block.material);
  if (!name.isEmpty()) return name;
  if (block.upoTag.isEmpty() || IsRatioTag(block.upoTag)) {
    if (block.mnhrTag.isEmpty() || IsLaborTag(block.mnhrTag)) return {};
  }
  return QStringLiteral(
             "the lines of the material \"%1\" don't say how its conversion numbers read (upo or "
             "opu, upm or mpu). Export the system again.")
      .arg(block.material.left(40));
}

QString Labelled(const char* label, int blanks, const QString& value) {
  return QString::fromLatin1(label) + Blanks(blanks) + value;
}

}  // namespace

QString ExportedText(const SystemFile& system) {
  return JoinedLines({system.description, system.units, system.unitPrice, system.lineColor,
                      QString(), QString(), QString()}) +
         JoinedLines(StoredBlocks(system.blocks));
}

ImportedSystem ReadExported(Files& files, const QString& asked) {
  const QString path = files.Resolved(asked);
  const QString fileName = FileNameOf(path);
  if (files.GetDisk().Size(path) > kMostImportBytes)
    return Refused(fileName, QStringLiteral("it is larger than 16 MB, and no system is."));
  QString text;
  const int error = files.ReadStored(path, text);
  if (error != kNoError)
    return Refused(fileName, error == kNoAccess ? QStringLiteral("there is no right to read it.")
                                                : QStringLiteral("it can't be read."));
  return CheckedExport(text, fileName);
}

ImportedSystem CheckedExport(const QString& text, const QString& fileName) {
  if (HoldsControls(text))
    return Refused(fileName,
                   QStringLiteral("it is no exported system. Open the system where it comes from "
                                  "and choose Export System there."));
  ImportedSystem imported;
  SystemFile& system = imported.system;
  LineReader lines(WholeLines(text));
  for (QString* line : {&system.description, &system.units, &system.unitPrice, &system.lineColor})
    lines.Read(*line);
  lines.Skip(kHeadLines - 4);
  QString line;
  while (lines.Read(line)) system.blocks += line;

  if (const QString name = NameRefusal(system.description); !name.isEmpty())
    return Refused(fileName, name);
  const qsizetype rest = system.blocks.size() % kBlockRows;
  if (rest > 0 && rest < kMeantRows)
    return Refused(fileName, QStringLiteral("it ends in the middle of a material. Export the "
                                            "system again."));
  while (system.blocks.size() % kBlockRows != 0) system.blocks += QString();
  if (system.blocks.size() / kBlockRows > kMostImportMaterials)
    return Refused(fileName,
                   QStringLiteral("it holds more than %1 materials.").arg(kMostImportMaterials));
  for (qsizetype row = 0; row < system.blocks.size(); row += kBlockRows) {
    const QString why = BlockRefusal(MaterialBlock::At(system.blocks, row));
    if (!why.isEmpty()) return Refused(fileName, why);
  }
  return imported;
}

QStringList PrintedSystem(const SystemFile& system) {
  QStringList lines = {QString(),
                       Labelled("System Name", 19, system.description),
                       Labelled("TakeOff Units", 16, system.units),
                       Labelled("Unit Price", 20, system.unitPrice),
                       QString(),
                       QString()};
  if (Value(system.unitPrice) != 0) return lines;
  for (qsizetype row = 0; row < system.blocks.size(); row += kBlockRows) {
    const MaterialBlock block = MaterialBlock::At(system.blocks, row);
    lines += Labelled("Material", 22, block.material);
    lines += Labelled("Order Units", 19, block.orderUnits);
    lines += Labelled("Cost per Order Unit", 11, block.price);
    lines += Labelled(block.upoTag == QLatin1String(kOpu) ? "Order Units per Takeoff Unit  "
                                                          : "TakeOff units per Order Unit  ",
                      0, block.upo);
    lines += block.mnhrTag == QLatin1String(kUpm)
                 ? Labelled("TakeOff Units per Manhour", 5, block.mnhrPO)
                 : Labelled("Manhours per TakeOff Unit", 4, block.mnhrPO);
    lines += Labelled("Waste Percentage", 14, block.waste);
    lines += Labelled("Wage Rate", 21, block.wageRate);
    lines += QString();
  }
  return lines;
}

}  // namespace tamo
