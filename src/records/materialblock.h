#pragma once

#include <QString>
#include <QStringList>

namespace tamo {

// A material takes twelve rows of an open system: nine that mean something, three spare ones that
// are always empty.
inline constexpr int kBlockRows = 12;
inline constexpr int kUpoTagRow = 4;
inline constexpr int kMnhrTagRow = 6;

// How the two conversion numbers of a material read.
inline constexpr char kUpo[] = "upo";  // takeoff units per order unit: Price / UPO
inline constexpr char kOpu[] = "opu";  // order units per takeoff unit: Price x UPO
inline constexpr char kUpm[] = "upm";  // takeoff units per manhour: WageRate / MnhrPO
inline constexpr char kMpu[] = "mpu";  // manhours per takeoff unit: WageRate x MnhrPO

bool IsRatioTag(const QString& tag);  // "upo" or "opu"
bool IsLaborTag(const QString& tag);  // "upm" or "mpu"

struct MaterialBlock {
  QString material;    // "" for a block that was only inserted: it is never saved
  QString orderUnits;  // the unit in which the material is bought
  QString price;       // of one order unit, money format
  QString upo;
  QString upoTag;
  QString mnhrPO;
  QString mnhrTag;
  QString waste;     // percent
  QString wageRate;  // of one manhour, money format

  // The block that begins at `row`; rows that are not there read as empty.
  static MaterialBlock At(const QStringList& system, qsizetype row);
  QStringList Rows() const;  // all twelve
};

// Row `at` of a list of rows, "" when there is none.
QString RowAt(const QStringList& rows, qsizetype at);

// The material names of an open system: row 0 of each block.
QStringList MaterialNames(const QStringList& system);

}  // namespace tamo
