#pragma once

#include <QString>
#include <QStringView>
#include <memory>
#include <vector>

#include "reports/linesystems.h"
#include "reports/namerows.h"
#include "reports/pricedsystem.h"
#include "reports/reportsource.h"
#include "reports/systemsahead.h"

namespace tamo {

// The systems of a report: each file is read once, and the texts of the last system stay as they
// are when the next one has no file. So a system without a file is priced with the unit price of
// the system before it, and has no materials; a test holds it.
class SystemShelf {
 public:
  // The source outlives it.
  explicit SystemShelf(const ReportSource& source) : source_(source), ahead_(source) {}
  SystemShelf(const SystemShelf&) = delete;
  SystemShelf& operator=(const SystemShelf&) = delete;

  // For the walk through the sheets, so that systems are read beforehand.
  SystemsAhead& Ahead() { return ahead_; }
  // Makes `name` the system at hand, or the one that a takeoff line means.
  void Load(QStringView name);
  void LoadOfLine(QStringView line);

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

  int NumberOf(QStringView name);
  void MakeAtHand(int number);
  Entry Read(const QString& name);
  std::shared_ptr<const PricedSystem> ReadSystem(const QString& name);

  const ReportSource& source_;
  SystemsAhead ahead_;
  NameRows index_;
  LineSystems lines_;
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
