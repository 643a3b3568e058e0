#include "reports/copies.h"

#include <QStringBuilder>

#include "common/columns.h"
#include "common/numbers.h"
#include "reports/figuretext.h"
#include "reports/linequantity.h"
#include "reports/notebook.h"
#include "reports/projectfiles.h"
#include "reports/rollup.h"

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

constexpr QStringView kCents = u".00";

QStringView LastOf(QStringView text, qsizetype count) {
  return text.last(qMin(count, text.size()));
}

// Whole dollars at the end of an Office Copy's line; nothing in the Field Copy.
class DollarColumn {
 public:
  DollarColumn(bool shown, double dollars, qsizetype width)
      : shown_(shown), width_(width), text_(FigureText::Whole(dollars)) {}
  QStringView Blanks() const {
    return BlankView(shown_ ? width_ - text_.Size() - kCents.size() : 0);
  }
  QStringView Figure() const { return shown_ ? text_.View() : QStringView(); }
  QStringView Cents() const { return shown_ ? kCents : QStringView(); }

 private:
  bool shown_;
  qsizetype width_;
  FigureText text_;
};

class CopyMaker : public TakeoffVisitor {
 public:
  CopyMaker(const ReportSource& source, const Markups& markups, bool office)
      : source_(source), shelf_(source), markups_(markups), office_(office) {
    Add(QStringLiteral("Project Manager"));
    Add(office ? QStringLiteral("Office Copy") : QStringLiteral("Field Copy"));
    Add({});
  }

  void BeginSheet(SheetKind, const QString& name) override { Add(name); }
  void EndSheet(SheetKind) override { Add({}); }

  void Line(SheetKind kind, QStringView line) override {
    const SheetColumns& columns = kind == SheetKind::Room ? kRoom : kArea;
    const QString system = SystemOfLine(line).toString();
    shelf_.Load(system);
    const qsizetype head = report_.lines.size();
    notes_.NoteSystem(shelf_, system, static_cast<int>(head));
    QString text =
        QStringLiteral("   ") + GrownRight(system, columns.nameWidth) + LastOf(line, 28).toString();
    const bool unitPriced = shelf_.UnitPrice() != 0;
    if (unitPriced) text += QStringLiteral("     Unit price item");
    Add(text);
    if (unitPriced || shelf_.Blocks().empty()) return;
    const double quantity = QuantityOf(kind, line, columns, static_cast<int>(head));
    double subtotal = 0;
    for (const PricedBlock& block : shelf_.Blocks()) {
      subtotal += MaterialLine(block, quantity, system);
      subtotal += LaborLine(block, quantity, system);
    }
    if (office_)
      report_.lines[head] += GrownLeft(MakeMoney(NumberText(subtotal)), columns.subtotalWidth);
  }

  TakeoffCopy Take() {
    Add(QString(63, QLatin1Char('_')));
    Add({});
    if (office_) {
      Add(QStringLiteral("   This project will take ") + NumberText(Raised(manhours_)) +
          QStringLiteral(" manhours to complete"));
      Add(QStringLiteral("   excluding all unit priced descriptions and quantities."));
      Add({});
    }
    report_.notes = notes_.Take();
    return std::move(report_);
  }

 private:
  void Add(QString line, bool detail = false) {
    report_.lines.append(std::move(line));
    report_.detail.push_back(detail);
  }

  double QuantityOf(SheetKind kind, QStringView line, const SheetColumns& columns, int row) {
    const double whole = WholeQuantity(kind, line);
    const double part = QuantityAt(line, columns.quantityFrom, columns.quantityWidth);
    if (source_.wholeQuantities) return whole;
    if (part != whole) {
      report_.partlyRead = true;
      notes_.Note(
          QStringLiteral("Of the quantity of these lines only the first 10 of 14 columns are "
                         "read. \"Read whole quantities\" takes all of it."),
          row);
    }
    return part;
  }

  QStringView Begin() const { return office_ ? u"     " : u"___  "; }

  // Adds a detail line and gives what its last 14 characters are worth.
  double AddDetail(QString&& line) {
    double dollars = 0;
    if (office_) {
      dollars = Value(LastOf(line, 14));
      report_.total += dollars;
      (SystemOfLine(line) == u"Labor" ? report_.labor : report_.material) += dollars;
    }
    Add(std::move(line), true);
    return dollars;
  }

  double MaterialLine(const PricedBlock& block, double quantity, const QString& system) {
    standing_.orderQuantity = WithWaste(block, OrderQuantity(block, quantity, system, standing_));
    CheckFigures({standing_.orderQuantity * 100}, system);
    const FigureText shown = FigureText::WithPoint(Truncated(standing_.orderQuantity * 100));
    double dollars = 0;
    if (office_) {
      const double m = Value(shown.View()) * block.price;
      const double markups = markups_.MOH * m + markups_.MTX * m + markups_.MMU * m +
                             markups_.MIOH * m + markups_.MITX * m + markups_.MIMU * m;
      dollars = Raised(m + markups);
    }
    CheckFigures({dollars}, system);
    const DollarColumn column(office_, dollars, 13);
    return AddDetail(Begin() % block.material % BlankView(21 - block.material.size()) %
                     BlankView(14 - shown.Size()) % shown.View() % u' ' % block.orderUnit % u"(s)" %
                     BlankView(5 - block.orderUnit.size()) % column.Blanks() % column.Figure() %
                     column.Cents());
  }

  double LaborLine(const PricedBlock& block, double quantity, const QString& system) {
    standing_.manhours = Manhours(block, quantity, system, standing_);
    manhours_ += standing_.manhours;
    CheckFigures({standing_.manhours * 100, manhours_}, system);
    const FigureText shown = FigureText::WithPoint(Truncated(standing_.manhours * 100 + 0.5));
    double dollars = 0;
    if (office_) {
      const double labor = standing_.manhours * block.wage;
      const double markups =
          Rounded(markups_.LOH * labor + markups_.LTX * labor + markups_.LMU * labor +
                  markups_.MIOH * labor + markups_.MITX * labor + markups_.MIMU * labor);
      dollars = Rounded(labor + markups);
    }
    CheckFigures({dollars}, system);
    const DollarColumn column(office_, dollars, 14);
    return AddDetail(Begin() % u"Labor" % BlankView(30 - shown.Size()) % shown.View() %
                     u" Manhours" % column.Blanks() % column.Figure() % column.Cents());
  }

  const ReportSource& source_;
  SystemShelf shelf_;
  MarkupFactors markups_;
  bool office_;
  StandingFigures standing_;
  double manhours_ = 0;
  TakeoffCopy report_;
  NoteBook notes_;
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
