#include "reports/copies.h"

#include <algorithm>

#include "common/columns.h"
#include "common/numbers.h"
#include "reports/copytable.h"
#include "reports/detailrow.h"
#include "reports/linequantity.h"
#include "reports/notebook.h"
#include "reports/rollup.h"
#include "reports/takeoffwalk.h"

namespace tamo {
namespace {

// What differs between the lines of a room and those of an area.
struct SheetColumns {
  qsizetype nameWidth;
  qsizetype quantityFrom;
  qsizetype quantityWidth;
  qsizetype subtotalWidth;
};
// Of a room's quantity the copies read the first 10 of 14 characters; a test holds it.
constexpr SheetColumns kRoom{21, 33, 10, 28};
constexpr SheetColumns kArea{20, 22, 14, 26};

QStringView LastOf(QStringView text, qsizetype count) {
  return text.last(qMin(count, text.size()));
}

// Blanks that fill a column of the heads; none for a text that is wider.
QStringView BlanksFor(qsizetype count) {
  static const QString blanks = Blanks(32);
  return QStringView(blanks).first(std::clamp<qsizetype>(count, 0, blanks.size()));
}

class CopyMaker : public TakeoffVisitor {
 public:
  CopyMaker(const ReportSource& source, const Markups& markups, bool office)
      : source_(source),
        shelf_(source),
        markups_(markups),
        office_(office),
        labor_(DetailRow::Labor(office)),
        table_(source.table, office) {
    Add(QStringLiteral("Project Manager"));
    Add(office ? QStringLiteral("Office Copy") : QStringLiteral("Field Copy"));
    Add({});
  }

  void BeginSheet(SheetKind kind, const QString& name) override {
    Add(name);
    table_.BeginSheet(kind, name);
  }
  void EndSheet(SheetKind) override { Add({}); }

  void Line(SheetKind kind, QStringView line) override {
    const SheetColumns& columns = kind == SheetKind::Room ? kRoom : kArea;
    shelf_.Load(SystemOfLine(line));
    const QString& system = shelf_.Asked();
    const qsizetype head = report_.lines.size();
    notes_.NoteSystem(shelf_, system, static_cast<int>(head));
    const bool unitPriced = shelf_.UnitPrice() != 0;
    const QStringView end = LastOf(line, 28);
    const QStringView pad = BlanksFor(columns.nameWidth - system.size());
    if (unitPriced || shelf_.Blocks().empty()) {
      report_.lines.Add({u"   ", system, pad, end,
                         unitPriced ? QStringView(u"     Unit price item") : QStringView()});
      report_.detail.push_back(false);
      table_.Line(line, WholeQuantity(kind, line));
      table_.EndLine(0);
      return;
    }
    Add({});
    table_.Line(line, WholeQuantity(kind, line));
    const double dollars = AddDetails(QuantityOf(kind, line, columns, static_cast<int>(head)));
    table_.EndLine(dollars);
    report_.total += dollars;
    const QString subtotal = office_ ? MoneyText(dollars) : QString();
    const qsizetype room = office_ ? columns.subtotalWidth - subtotal.size() : 0;
    report_.lines.SetRow(head, {u"   ", system, pad, end, BlanksFor(room), subtotal});
    report_.detail.resize(static_cast<size_t>(report_.lines.size()), true);
  }

  TakeoffCopy Take() {
    Add(QString(63, QLatin1Char('_')));
    Add({});
    if (office_) {
      Add(QStringLiteral("   This project will take ") + NumberText(Raised(manhours_)) +
          QStringLiteral(" manhours to complete"));
      Add(QStringLiteral("   excluding all unit priced descriptions and quantities."));
      table_.Manhours(Raised(manhours_));
      Add({});
    }
    report_.notes = notes_.Take();
    return std::move(report_);
  }

 private:
  void Add(const QString& line) {
    report_.lines += line;
    report_.detail.push_back(false);
  }

  double QuantityOf(SheetKind kind, QStringView line, const SheetColumns& columns, int row) {
    const double whole = WholeQuantity(kind, line);
    const double part = QuantityAt(line, columns.quantityFrom, columns.quantityWidth);
    if (source_.wholeQuantities) return whole;
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

  // Adds the lines under a takeoff line; returns what they come to.
  double AddDetails(double quantity) {
    const std::vector<DetailRow>& materials = Materials();
    const std::vector<PricedBlock>& blocks = shelf_.Blocks();
    double dollars = 0;
    for (size_t i = 0; i < blocks.size(); ++i) {
      for (const DetailRow::Worth& worth :
           {AddMaterial(blocks[i], materials[i], quantity), AddLabor(blocks[i], quantity)}) {
        (worth.labor ? report_.labor : report_.material) += worth.dollars;
        dollars += worth.dollars;
      }
    }
    CheckFigures({manhours_}, shelf_.Asked());
    return dollars;
  }

  const std::vector<DetailRow>& Materials() {
    const auto number = static_cast<size_t>(shelf_.Number());
    if (number >= materials_.size()) materials_.resize(number + 1);
    std::vector<DetailRow>& rows = materials_[number];
    if (rows.empty()) {
      for (const PricedBlock& block : shelf_.Blocks())
        rows.push_back(DetailRow::Material(block, office_));
    }
    return rows;
  }

  DetailRow::Worth AddMaterial(const PricedBlock& block, const DetailRow& row, double quantity) {
    const QString& system = shelf_.Asked();
    standing_.orderQuantity = WithWaste(block, OrderQuantity(block, quantity, system, standing_));
    const double hundredths = Truncated(standing_.orderQuantity * 100);
    CheckFigures({hundredths}, system);
    double dollars = 0;
    if (office_) {
      const double m = ReadWithPoint(hundredths) * block.price;
      const double markups = markups_.MOH * m + markups_.MTX * m + markups_.MMU * m +
                             markups_.MIOH * m + markups_.MITX * m + markups_.MIMU * m;
      dollars = Raised(m + markups);
      CheckFigures({dollars}, system);
    }
    table_.Material(block, hundredths / 100, dollars);
    return row.AddTo(report_.lines, hundredths, dollars);
  }

  DetailRow::Worth AddLabor(const PricedBlock& block, double quantity) {
    const QString& system = shelf_.Asked();
    standing_.manhours = Manhours(block, quantity, system, standing_);
    manhours_ += standing_.manhours;
    const double hundredths = Truncated(standing_.manhours * 100 + 0.5);
    CheckFigures({hundredths}, system);
    double dollars = 0;
    if (office_) {
      const double labor = standing_.manhours * block.wage;
      const double markups =
          Rounded(markups_.LOH * labor + markups_.LTX * labor + markups_.LMU * labor +
                  markups_.MIOH * labor + markups_.MITX * labor + markups_.MIMU * labor);
      dollars = Rounded(labor + markups);
      CheckFigures({dollars}, system);
    }
    table_.Labor(hundredths / 100, dollars);
    return labor_.AddTo(report_.lines, hundredths, dollars);
  }

  const ReportSource& source_;
  SystemShelf shelf_;
  MarkupFactors markups_;
  bool office_;
  StandingFigures standing_;
  std::vector<std::vector<DetailRow>> materials_;  // of each system
  DetailRow labor_;
  CopyTable table_;
  double manhours_ = 0;
  TakeoffCopy report_;
  NoteBook notes_;
  int partly_ = -1;  // the number of the note on quantities that are read in part
};

TakeoffCopy MakeCopy(const ReportSource& source, const Markups& markups, bool office) {
  CopyMaker maker(source, markups, office);
  WalkTakeoff(source, maker);
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
