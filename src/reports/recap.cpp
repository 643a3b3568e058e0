#include "reports/recap.h"

#include "common/columns.h"
#include "common/numbers.h"
#include "records/itemline.h"
#include "reports/cents.h"
#include "reports/merge.h"
#include "reports/notebook.h"
#include "reports/recaptable.h"
#include "reports/rollup.h"
#include "reports/systemshelf.h"
#include "reports/takeoffwalk.h"

namespace tamo {
namespace {

const QString kCents = QStringLiteral(".00");
const QString kRule =
    QStringLiteral("    ") + QString(65, QLatin1Char('_'));  // over the totals of the sheet

class RecapSheet {
 public:
  RecapSheet(const ReportSource& source, const Markups& markups, bool detailed)
      : shelf_(source), markups_(markups), detailed_(detailed), table_(source.table, detailed) {
    Add(QStringLiteral("Recap Sheet"));
    Add({});
  }

  SystemsAhead& Systems() { return shelf_.Ahead(); }

  void Row(const MergedRow& row) {
    if (row.value == 0) return;
    shelf_.Load(row.name);
    const int at = static_cast<int>(report_.lines.size());
    notes_.NoteSystem(shelf_, row.name, at);
    if (shelf_.UnitPrice() != 0) {
      UnitPricedRow(row);
    } else {
      PricedRow(row);
    }
    Add({});
  }

  void Totals(const QStringList& items, const QString& adjustmentText) {
    const double adjustment = Value(adjustmentText);
    Add(kRule);
    Add({});
    total_ = Rounded(total_);
    const bool more = !items.isEmpty() || adjustment != 0;
    TotalLine(more ? QStringLiteral("          Subtotal") : QStringLiteral("          Total   "),
              46);
    if (!items.isEmpty()) Items(items);
    Add({});
    if (adjustment != 0) {
      Adjustment(adjustmentText, adjustment);
    } else if (!items.isEmpty()) {
      TotalLine(QStringLiteral("          Total   "), 46);
    }
    Add({});
    Add(QStringLiteral("       This project will take ") + NumberText(Raised(manhours_)) +
        QStringLiteral(" manhours to complete"));
    Add(QStringLiteral("       excluding unit priced items."));
    table_.Manhours(Raised(manhours_));
    Add({});
    for (const int row : centRows_)
      notes_.Note(
          CentsNote(EntriesWithCents(items, adjustmentText), QStringLiteral("The total"), total_),
          row);
  }

  Report Take() {
    report_.notes = notes_.Take();
    return std::move(report_);
  }

 private:
  void Add(const QString& line) { report_.lines += line; }
  // The next line reads badly: ".00" stands behind cents.
  void NoteRow() { centRows_.push_back(static_cast<int>(report_.lines.size())); }

  void UnitPricedRow(const MergedRow& row) {
    const double amount = UnitPricedAmount(shelf_.UnitPrice(), row.value, row.name);
    Add(GrownRight(QStringLiteral("  ") + row.name, 21) + GrownLeft(row.quantity, 14) +
        QLatin1Char(' ') + GrownRight(row.units, 6) + GrownLeft(shelf_.UnitPriceText(), 11) +
        GrownLeft(NumberText(amount) + kCents, 14));
    table_.UnitPriced(row, shelf_.UnitPrice(), amount);
    total_ += amount;
  }

  void PricedRow(const MergedRow& row) {
    const LineRollUp line = RollUpLine(shelf_.Blocks(), row.value, row.name, markups_, standing_);
    Add(QStringLiteral("  ") + row.name + GrownBlanks(35 - row.name.size() - row.quantity.size()) +
        row.quantity + QLatin1Char(' ') + GrownRight(row.units, 5) + QStringLiteral("EUP ") +
        GrownLeft(line.unitPrice, 8) + GrownLeft(NumberText(line.total), 11) + kCents);
    if (detailed_) {
      DetailedFigures(line);
    } else {
      Figure(QStringLiteral("Labor     "), SignedNumberText(line.rawLabor), 37);
      Figure(QStringLiteral("Material  "), SignedNumberText(line.rawMaterial), 37);
      Figure(QStringLiteral("Markups          "), NumberText(line.markups), 30);
    }
    table_.Priced(row, line, markups_);
    total_ += line.total;
    manhours_ += line.manhours;
  }

  void Figure(const QString& label, const QString& figure, int width) {
    Add(Blanks(5) + label + GrownLeft(figure, width) + kCents);
  }

  void DetailedFigures(const LineRollUp& line) {
    const double labor = line.rawLabor;
    const double material = line.rawMaterial;
    Detail(QStringLiteral("-Raw Labor       "), labor);
    Detail(QStringLiteral("Labor Overhead   "), markups_.LOH * labor);
    Detail(QStringLiteral("Labor Tax        "), markups_.LTX * labor);
    Detail(QStringLiteral("Labor Markup     "), markups_.LMU * labor);
    Misc(labor);
    Detail(QStringLiteral("-Raw Material    "), material);
    Detail(QStringLiteral("Material Overhead"), markups_.MOH * material);
    Detail(QStringLiteral("Material Tax     "), markups_.MTX * material);
    Detail(QStringLiteral("Material Markup  "), markups_.MMU * material);
    Misc(material);
  }

  void Misc(double raw) {
    Detail(QStringLiteral("Misc. Overhead   "), markups_.MIOH * raw);
    Detail(QStringLiteral("Misc. Tax        "), markups_.MITX * raw);
    Detail(QStringLiteral("Misc. Markup     "), markups_.MIMU * raw);
  }

  void Detail(const QString& label, double dollars) {
    Add(Blanks(10) + label + GrownLeft(NumberText(Truncated(dollars)), 13) + kCents);
  }

  // The total as it stands now. A total that ends in cents is followed by ".00" like any other.
  void TotalLine(const QString& label, qsizetype fill) {
    const QString total = NumberText(total_);
    if (HasCents(total_)) NoteRow();
    Add(label + GrownBlanks(fill - total.size()) + QStringLiteral("$ ") + total + kCents);
    table_.Total(label.trimmed(), total_);
  }

  void Items(const QStringList& items) {
    for (const QString& item : items) {
      const double price = ItemPrice(item);
      Add(Blanks(13) + item);
      const double markup = markups_.BottomLineSum() * price;
      Add(QStringLiteral("                Markup") + GrownLeft(NumberText(Truncated(markup)), 18) +
          kCents);
      table_.Item(item, price, markup);
      total_ = total_ + price;
      total_ = total_ + markup;
    }
    Add(kRule);
  }

  void Adjustment(const QString& text, double adjustment) {
    TotalLine(QStringLiteral("                Subtotal"), 40);
    Add({});
    if (text.contains(QLatin1Char('.'))) NoteRow();
    Add(Blanks(39) + QStringLiteral("Adjustment") + GrownLeft(text, 17) + kCents);
    table_.Adjustment(adjustment);
    Add(Blanks(61) + QStringLiteral("__________"));
    Add({});
    total_ += adjustment;
    TotalLine(QStringLiteral("                Total"), 43);
    Add({});
  }

  SystemShelf shelf_;
  MarkupFactors markups_;
  bool detailed_;
  RecapTable table_;
  StandingFigures standing_;
  Report report_;
  NoteBook notes_;
  std::vector<int> centRows_;
  double total_ = 0;
  double manhours_ = 0;
};

}  // namespace

Report MinimalRecapSheet(const ReportSource& source, const Markups& markups, bool detailed,
                         QString& adjustment) {
  const QStringList items = CountedItems(source);
  ReadCountedAdjustment(source, adjustment);
  RecapSheet sheet(source, markups, detailed);
  ForEachRow(source, Calculate(source, &sheet.Systems()),
             [&](const MergedRow& row) { sheet.Row(row); });
  sheet.Totals(items, adjustment);
  return sheet.Take();
}

}  // namespace tamo
