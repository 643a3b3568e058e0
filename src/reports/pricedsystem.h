#pragma once

#include <QString>
#include <QStringView>
#include <memory>
#include <vector>

#include "records/linescanner.h"
#include "records/systemfile.h"
#include "reports/namerows.h"
#include "reports/reportsource.h"

namespace tamo {

// How a block's order ratio reads: takeoff units per order unit, or order units per takeoff unit.
enum class OrderTag { None, Upo, Opu };
// How its manhour ratio reads: takeoff units per manhour, or manhours per takeoff unit.
enum class LaborTag { None, Upm, Mpu };

// One material of a system, as its twelve lines in the system's file tell it. Figures are read
// once; a text that is no number is 0.
struct PricedBlock {
  QString material;
  QString orderUnit;
  double price = 0;  // dollars for one order unit
  double ratio = 0;
  OrderTag orderTag = OrderTag::None;
  double manhourRatio = 0;
  LaborTag laborTag = LaborTag::None;
  double waste = 0;  // percent
  double wage = 0;   // dollars a manhour

  // Price, a ratio or the wage reads 0: nearly always something forgotten.
  bool ReadsZero() const { return price == 0 || ratio == 0 || manhourRatio == 0 || wage == 0; }
};

// The material rows of a system as blocks of twelve. A last block of fewer rows counts, its missing
// rows empty.
std::vector<PricedBlock> PricedBlocks(LineScanner rows);

// A system's file in the project, as the reports read it.
struct PricedSystem {
  SystemFile file;     // without its material rows
  bool found = false;  // there is such a file
  std::vector<PricedBlock> blocks;
};

PricedSystem PricedSystemOf(const QString& text);

// Reads the project's copy of the system `name`; the library is never read.
int LoadSystem(const ReportSource& source, const QString& name, PricedSystem& system);

// The systems of a report: each file is read once, and the texts of the last system stay as they
// are when the next one has no file. So a system without a file is priced with the unit price of
// the system before it, and has no materials; a test holds it.
class SystemShelf {
 public:
  explicit SystemShelf(const ReportSource& source) : source_(source) {}
  SystemShelf(const SystemShelf&) = delete;
  SystemShelf& operator=(const SystemShelf&) = delete;

  // Makes `name` the system at hand.
  void Load(QStringView name);

  const QString& Name() const { return *name_; }
  const QString& Units() const { return *units_; }
  const QString& UnitPriceText() const { return *unitPriceText_; }
  double UnitPrice() const { return unitPrice_; }
  const QString& Notes() const { return *notes_; }
  const std::vector<PricedBlock>& Blocks() const { return *blocks_; }
  // The system itself, as it stands.
  const std::shared_ptr<const PricedSystem>& AtHand() const {
    return entries_[static_cast<size_t>(number_)]->system;
  }
  bool Found() const { return found_; }
  // Some material of the system at hand reads a figure of 0.
  bool ReadsZero() const { return readsZero_; }
  // The name that was asked for, and its number: 0 for the first name of the report, then 1 ...
  const QString& Asked() const { return index_.At(number_); }
  int Number() const { return number_; }

 private:
  struct Entry {
    std::shared_ptr<const PricedSystem> system;
    double unitPrice = 0;
    bool readsZero = false;
  };

  Entry Read(const QString& name) const;

  const ReportSource& source_;
  NameRows index_;
  std::vector<std::unique_ptr<Entry>> entries_;
  std::vector<PricedBlock> none_;
  // Each text is that of the last system that had one.
  const QString empty_;
  const QString* name_ = &empty_;
  const QString* units_ = &empty_;
  const QString* unitPriceText_ = &empty_;
  const QString* notes_ = &empty_;
  double unitPrice_ = 0;
  const std::vector<PricedBlock>* blocks_ = &none_;
  bool found_ = false;
  bool readsZero_ = false;
  int number_ = -1;
};

}  // namespace tamo
