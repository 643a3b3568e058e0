#include "reports/copies.h"

#include <vector>

#include "common/numbers.h"
#include "records/linecolumns.h"
#include "records/roomline.h"
#include "reports/copytable.h"
#include "reports/detailrow.h"
#include "reports/linequantity.h"
#include "reports/notebook.h"
#include "reports/rollup.h"
#include "reports/systemshelf.h"
#include "reports/takeoffwalk.h"

namespace tamo {
namespace {

constexpr qsizetype kEnd = 28;         // characters of a takeoff line that its head repeats
constexpr qsizetype kFirstPage = 100;  // rows

class CopyMaker : public TakeoffVisitor {
 public:
  CopyMaker(const ReportSource& source, const Markups& markups, bool office)
      : source_(source),
        shelf_(source),
        arithmetic_(MarkupFactors(markups), office),
        rows_(std::make_shared<CopyRows>(arithmetic_)),
        labor_(DetailRow::Labor(office)),
        table_(source.table, office) {
    rows_->Add(QStringLiteral("Project Manager"));
    rows_->Add(office ? QStringLiteral("Office Copy") : QStringLiteral("Field Copy"));
    rows_->Add({});
  }

  void BeginSheet(SheetKind kind, const QString& name) override {
    rows_->Add(name);
    table_.BeginSheet(kind, name);
  }
  void EndSheet(SheetKind) override { rows_->Add({}); }

  void Line(SheetKind kind, QStringView line) override {
    shelf_.LoadOfLine(line);
    const QString& system = shelf_.Asked();
    const int head = static_cast<int>(rows_->Count());
    notes_.NoteSystem(shelf_, system, head);
    const QStringView end = line.last(qMin(kEnd, line.size()));
    if (source_.table != nullptr) table_.Line(line, WholeQuantity(kind, line));
    if (shelf_.UnitPrice() != 0) {
      rows_->Add(CopyHead(kind, system, end) + QStringLiteral("     Unit price item"));
      table_.EndLine(0);
    } else if (shelf_.Blocks().empty()) {
      rows_->Add(CopyHead(kind, system, end));
      table_.EndLine(0);
    } else {
      AddLine(kind, end, QuantityOf(kind, line, head));
    }
    if (!paged_ && rows_->Count() >= kFirstPage) TellFirstPage();
  }

  SystemsAhead& Systems() { return shelf_.Ahead(); }

  TakeoffCopy Take() {
    rows_->Add(QString(63, QLatin1Char('_')));
    rows_->Add({});
    if (arithmetic_.Office()) {
      rows_->Add(QStringLiteral("   This project will take ") + NumberText(Raised(manhours_)) +
                 QStringLiteral(" manhours to complete"));
      rows_->Add(QStringLiteral("   excluding all unit priced descriptions and quantities."));
      table_.Manhours(Raised(manhours_));
      rows_->Add({});
    }
    report_.notes = notes_.Take();
    report_.rows = rows_;
    report_.lines = TextRows(rows_);
    return std::move(report_);
  }

 private:
  void TellFirstPage() {
    paged_ = true;
    if (!source_.onFirstPage) return;
    QStringList rows;
    for (qsizetype row = 0; row < kFirstPage; ++row) rows += rows_->Row(row);
    source_.onFirstPage(rows);
  }

  double QuantityOf(SheetKind kind, QStringView line, int row) {
    const double whole = WholeQuantity(kind, line);
    if (source_.wholeQuantities || kind == SheetKind::Area) return whole;
    const double part = ValueOf(line, kRoomQuantityStart);
    if (part != whole) {
      report_.partlyRead = true;
      if (partly_ < 0) {
        partly_ = notes_.Number(
            QStringLiteral("Of the quantity of these lines only the first 10 of 14 columns are "
                           "read. \"Read whole quantities\" takes all of it."));
      }
      notes_.AddRow(partly_, row);
    }
    return part;
  }

  // A takeoff line with the lines under it.
  void AddLine(SheetKind kind, QStringView end, double quantity) {
    const QString& system = shelf_.Asked();
    const int number = Number();
    arithmetic_.Work(rows_->System(number).blocks, quantity, system, standing_, figures_);
    double dollars = 0;
    for (const CopyFigures& of : figures_) {
      manhours_ += of.manhours;
      dollars += of.materialDollars + of.laborDollars;
    }
    CheckFigures({manhours_}, system);
    const bool fits = rows_->AddLine(kind, number, end, quantity, figures_, dollars);
    const double worth =
        fits ? CountFitting(rows_->System(number)) : AddAsTexts(kind, end, rows_->System(number));
    report_.total += worth;
    if (source_.table != nullptr) TellTable(worth);
  }

  void TellTable(double worth) {
    const std::vector<PricedBlock>& blocks = shelf_.Blocks();
    for (size_t i = 0; i < blocks.size(); ++i) {
      table_.Material(blocks[i], figures_[i].material / 100, figures_[i].materialDollars);
      table_.Labor(figures_[i].labor / 100, figures_[i].laborDollars);
    }
    table_.EndLine(worth);
  }

  // The number in the rows of the system at hand.
  int Number() {
    const auto asked = static_cast<size_t>(shelf_.Number());
    if (asked >= numbers_.size()) numbers_.resize(asked + 1, -1);
    int& number = numbers_[asked];
    if (number < 0) number = rows_->AddSystem(shelf_.Asked(), shelf_.AtHand());
    return number;
  }

  void Count(const DetailRow::Worth& worth) {
    (worth.labor ? report_.labor : report_.material) += worth.dollars;
  }

  // What the detail lines come to.
  double CountFitting(const CopySystem& system) {
    double dollars = 0;
    if (!arithmetic_.Office()) return dollars;
    for (size_t i = 0; i < figures_.size(); ++i) {
      const bool named = system.materials[i].IsLabor();
      Count({figures_[i].materialDollars, named});
      Count({figures_[i].laborDollars, true});
      dollars += figures_[i].materialDollars;
      dollars += figures_[i].laborDollars;
    }
    return dollars;
  }

  // What a line is worth is then read off its text.
  double AddAsTexts(SheetKind kind, QStringView end, const CopySystem& system) {
    TextRows details;
    double dollars = 0;
    for (size_t i = 0; i < figures_.size(); ++i) {
      const CopyFigures& of = figures_[i];
      for (const DetailRow::Worth& worth :
           {system.materials[i].AddTo(details, of.material, of.materialDollars),
            labor_.AddTo(details, of.labor, of.laborDollars)}) {
        Count(worth);
        dollars += worth.dollars;
      }
    }
    rows_->Add(arithmetic_.Office() ? CopyHead(kind, system.name, end, dollars)
                                    : CopyHead(kind, system.name, end));
    for (qsizetype i = 0; i < details.size(); ++i) rows_->AddDetail(details[i]);
    return dollars;
  }

  const ReportSource& source_;
  SystemShelf shelf_;
  const CopyArithmetic arithmetic_;
  const std::shared_ptr<CopyRows> rows_;
  const DetailRow labor_;
  StandingFigures standing_;
  std::vector<CopyFigures> figures_;  // of the line at hand
  std::vector<int> numbers_;          // in the rows, of each system of the shelf; -1 for none yet
  CopyTable table_;
  double manhours_ = 0;
  TakeoffCopy report_;
  NoteBook notes_;
  bool paged_ = false;
  int partly_ = -1;  // the number of the note on quantities that are read in part
};

TakeoffCopy MakeCopy(const ReportSource& source, const Markups& markups, bool office) {
  CopyMaker maker(source, markups, office);
  WalkTakeoff(source, maker, &maker.Systems());
  return maker.Take();
}

}  // namespace

TakeoffCopy FieldCopy(const ReportSource& source) {
  return MakeCopy(source, {}, false);
}

TakeoffCopy OfficeCopy(const ReportSource& source, const Markups& markups) {
  return MakeCopy(source, markups, true);
}

}  // namespace tamo
