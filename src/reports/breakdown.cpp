#include "reports/breakdown.h"

#include "common/columns.h"
#include "common/numbers.h"
#include "records/itemline.h"
#include "reports/cents.h"
#include "reports/merge.h"
#include "reports/notebook.h"
#include "reports/systemshelf.h"
#include "reports/takeoffwalk.h"

namespace tamo {

BreakFigures MakeBreak(const ReportSource& source, const Markups& markups,
                       QString& adjustmentText) {
  BreakFigures figures;
  const QStringList items = CountedItems(source);
  ReadCountedAdjustment(source, adjustmentText);
  SystemShelf shelf(source);
  const std::vector<MergedRow> rows = Calculate(source, &shelf.Ahead());
  if (rows.empty()) return figures;

  StandingFigures standing;
  ProjectRollUp sums;
  ForEachRow(source, rows, [&](const MergedRow& row) {
    if (row.value == 0) return;
    shelf.Load(row.name);
    if (shelf.UnitPrice() != 0) {
      figures.unitPriced += UnitPricedAmount(shelf.UnitPrice(), row.value, row.name);
      figures.unitItems += row.name;
      return;
    }
    for (const PricedBlock& block : shelf.Blocks()) {
      const BlockDollars dollars = PriceBlock(block, row.value, row.name, standing);
      sums.rawMaterial += dollars.material;
      sums.rawLabor += Raised(dollars.labor);  // a least charge of a broken wage is raised here
    }
  });
  for (const QString& item : items) sums.rawBottomLine += ItemPrice(item);
  const double adjustment = Value(adjustmentText);
  figures.withCents = EntriesWithCents(items, adjustmentText);
  figures.bottomLineListed = adjustment != 0;
  figures.roll = RollUpProject(sums, adjustment, MarkupFactors(markups));
  return figures;
}

namespace {

struct BreakLine {
  const char* label;
  int blanks;  // behind the label, before the figure's column
  int width;
  double ProjectRollUp::*figure;
};

constexpr BreakLine kLabor[] = {
    {"    Total Labor:", 0, 52, &ProjectRollUp::totalLabor},
    {"        Raw Labor:", 24, 15, &ProjectRollUp::rawLabor},
    {"        Labor Overhead:", 7, 12, &ProjectRollUp::laborOverhead},
    {"        Labor Tax:", 9, 15, &ProjectRollUp::laborTax},
    {"        Labor Markup:", 6, 15, &ProjectRollUp::laborMarkup},
};
constexpr BreakLine kMaterial[] = {
    {"    Total Material:", 0, 49, &ProjectRollUp::totalMaterial},
    {"        Raw Material:", 21, 15, &ProjectRollUp::rawMaterial},
    {"        Material Overhead:", 1, 15, &ProjectRollUp::materialOverhead},
    {"        Material Tax:", 6, 15, &ProjectRollUp::materialTax},
    {"        Material Markup:", 3, 15, &ProjectRollUp::materialMarkup},
};
constexpr BreakLine kBottomLine[] = {
    {"    Total Bottom Line:", 0, 46, &ProjectRollUp::totalBottomLine},
    {"        Raw Bottom Line:", 18, 15, &ProjectRollUp::rawBottomLine},
    {"        Bottom Line Overhead:", 0, 13, &ProjectRollUp::bottomLineOverhead},
    {"        Bottom Line Tax:", 0, 18, &ProjectRollUp::bottomLineTax},
    {"        Bottom Line Markup:", 0, 15, &ProjectRollUp::bottomLineMarkup},
};
constexpr BreakLine kMisc[] = {
    {"    Total Miscellaneous:", 0, 44, &ProjectRollUp::totalMisc},
    {"        Misc. Overhead:", 0, 19, &ProjectRollUp::miscOverhead},
    {"        Misc. Tax:", 3, 21, &ProjectRollUp::miscTax},
    {"        Misc. Markup:", 0, 21, &ProjectRollUp::miscMarkup},
};

// A caption as a table has it: without blanks and the colon.
QString Plain(const char* label) {
  const QString name = QString::fromLatin1(label).trimmed();
  return name.endsWith(QLatin1Char(':')) ? name.chopped(1) : name;
}

void BeginTable(TableSink* table, const ProjectRollUp& roll) {
  if (table == nullptr) return;
  table->Begin({{QStringLiteral("Group"), ColumnKind::Text, 20},
                {QStringLiteral("Figure"), ColumnKind::Text},
                {QStringLiteral("Amount"), ColumnKind::Money},
                {QStringLiteral("Per cent"), ColumnKind::Percent}});
  table->Add({u"Bid", u"Total Bid Price", roll.totalBid}, RowWeight::Total);
}

void AddProfits(TableSink* table, const ProjectRollUp& roll) {
  if (table == nullptr) return;
  table->Add({u"Profit", u"Gross Profit", {}, roll.grossProfit});
  table->Add({u"Profit", u"Net Profit", {}, roll.netProfit});
}

template <size_t N>
void AddRows(TableSink* table, const char* heading, const BreakLine (&group)[N],
             const ProjectRollUp& roll) {
  if (table == nullptr) return;
  const QString name = QString::fromLatin1(heading);
  for (const BreakLine& line : group) {
    const QString figure = Plain(line.label);
    table->Add({name, figure, roll.*line.figure},
               &line == group ? RowWeight::Total : RowWeight::Plain);
  }
}

template <size_t N>
void AddGroup(TextRows& lines, TableSink* table, const char* heading, const BreakLine (&group)[N],
              const ProjectRollUp& roll) {
  AddRows(table, heading, group, roll);
  lines += QLatin1String(heading);
  for (const BreakLine& line : group) {
    lines += QLatin1String(line.label) + Blanks(line.blanks) +
             GrownLeft(NumberText(roll.*line.figure), line.width) + QStringLiteral(".00");
  }
  lines += QString();
}

QString TotalBid(const ProjectRollUp& roll) {
  const QString total = NumberText(roll.totalBid);
  return QStringLiteral("Total Bid Price:") + GrownBlanks(50 - total.size()) +
         QStringLiteral("$ ") + total + QStringLiteral(".00");
}

QString Profit(const char* label, int width, double percent) {
  return QLatin1String(label) + GrownLeft(NumberText(percent), width) + QStringLiteral(" %");
}

void NoteCents(const BreakFigures& figures, Report& report) {
  ReportNote note{
      CentsNote(figures.withCents, QStringLiteral("The total bid price"), figures.roll.totalBid),
      {}};
  for (qsizetype row = 0; row < report.lines.size(); ++row) {
    const QString line = report.lines[row];
    const qsizetype cents = line.lastIndexOf(QLatin1Char('.'));
    const qsizetype point = line.lastIndexOf(QLatin1Char('.'), cents - 1);
    if (cents > 0 && point > line.lastIndexOf(QLatin1Char(' ')))
      note.rows.push_back(static_cast<int>(row));
  }
  if (!note.rows.empty()) report.notes.push_back(std::move(note));
}

}  // namespace

Report BreakDown(const BreakFigures& figures, TableSink* table) {
  const ProjectRollUp& roll = figures.roll;
  Report report;
  TextRows& lines = report.lines;
  lines = {QStringLiteral("BreakDown"), QString(), TotalBid(roll), QString()};
  BeginTable(table, roll);
  AddGroup(lines, table, "Labor", kLabor, roll);
  AddGroup(lines, table, "Material", kMaterial, roll);
  AddGroup(lines, table, "Bottom Line Items", kBottomLine, roll);
  AddGroup(lines, table, "Miscellaneous", kMisc, roll);
  AddProfits(table, roll);
  lines += QString(71, QLatin1Char('_'));
  const int lastTotal = static_cast<int>(lines.size());
  lines += TotalBid(roll);
  lines += QString();
  lines += Profit("    Gross Profit:", 11, roll.grossProfit);
  lines += Profit("    Net Profit:", 13, roll.netProfit);
  if (!figures.unitItems.isEmpty()) {
    report.notes.push_back(
        {QStringLiteral("Unit-priced items are not part of this bid price: %1. They come to %2.00.")
             .arg(figures.unitItems.join(QStringLiteral(", ")), NumberText(figures.unitPriced)),
         {2, lastTotal}});
  }
  NoteCents(figures, report);
  return report;
}

}  // namespace tamo
