#include "reports/copies.h"

#include <QStringBuilder>
#include <unordered_map>

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
    shelf_.Load(SystemOfLine(line));
    const QString& system = shelf_.Asked();
    const qsizetype head = report_.lines.size();
    notes_.NoteSystem(shelf_, system, static_cast<int>(head));
    const bool unitPriced = shelf_.UnitPrice() != 0;
    const QStringView end = LastOf(line, 28);
    const QStringView pad = BlankView(columns.nameWidth - system.size());
    if (unitPriced || shelf_.Blocks().empty()) {
      Add(u"   " % system % pad % end %
          (unitPriced ? QStringView(u"     Unit price item") : QStringView()));
      return;
    }
    const Group& group = GroupOf(QuantityOf(kind, line, columns, static_cast<int>(head)));
    const QString& subtotal = group.subtotal;
    Add(u"   " % system % pad % end %
        BlankView(office_ ? columns.subtotalWidth - subtotal.size() : 0) % subtotal);
    AddGroup(group);
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
  void Add(QString line) {
    report_.lines.append(std::move(line));
    report_.detail.push_back(false);
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

  // The lines under a takeoff line. They hang on the system and the quantity alone, unless a block
  // without its tag takes over a figure of another line, so equal ones are made once and shared.
  struct Group {
    QStringList lines;
    std::vector<double> manhours;  // of each block
    double dollars = 0;
    double labor = 0;
    double material = 0;
    QString subtotal;  // of the dollars, as money; Office Copy only
    StandingFigures standing;
  };

  const Group& GroupOf(double quantity) {
    const auto number = static_cast<size_t>(shelf_.Number());
    if (number >= groups_.size()) groups_.resize(number + 1);
    SystemGroups& known = groups_[number];
    if (!known.looked) {
      known.looked = true;
      for (const PricedBlock& block : shelf_.Blocks()) {
        if (block.orderTag == OrderTag::None || block.laborTag == LaborTag::None)
          known.shared = false;
      }
    }
    if (!known.shared) {
      single_ = MakeGroup(quantity);
      return single_;
    }
    const auto found = known.byQuantity.find(quantity);
    if (found != known.byQuantity.end()) return found->second;
    return known.byQuantity.emplace(quantity, MakeGroup(quantity)).first->second;
  }

  void AddGroup(const Group& group) {
    report_.lines += group.lines;
    report_.detail.resize(static_cast<size_t>(report_.lines.size()), true);
    for (const double manhours : group.manhours) manhours_ += manhours;
    CheckFigures({manhours_}, shelf_.Asked());
    standing_ = group.standing;
    report_.total += group.dollars;
    report_.labor += group.labor;
    report_.material += group.material;
  }

  Group MakeGroup(double quantity) {
    Group group;
    group.standing = standing_;
    group.lines.reserve(2 * static_cast<qsizetype>(shelf_.Blocks().size()));
    group.manhours.reserve(shelf_.Blocks().size());
    for (const PricedBlock& block : shelf_.Blocks()) {
      MaterialLine(block, quantity, group);
      LaborLine(block, quantity, group);
    }
    if (office_) group.subtotal = MakeMoney(NumberText(group.dollars));
    return group;
  }

  QStringView Begin() const { return office_ ? u"     " : u"___  "; }

  // A detail line is worth what its last 14 characters say.
  void AddDetail(QString line, Group& group) const {
    if (office_) {
      const double dollars = Value(LastOf(line, 14));
      group.dollars += dollars;
      (SystemOfLine(line) == u"Labor" ? group.labor : group.material) += dollars;
    }
    group.lines.append(std::move(line));
  }

  void MaterialLine(const PricedBlock& block, double quantity, Group& group) const {
    const QString& system = shelf_.Asked();
    group.standing.orderQuantity =
        WithWaste(block, OrderQuantity(block, quantity, system, group.standing));
    const double hundredths = Truncated(group.standing.orderQuantity * 100);
    CheckFigures({hundredths}, system);
    const FigureText shown = FigureText::WithPoint(hundredths);
    double dollars = 0;
    if (office_) {
      const double m = Value(shown.View()) * block.price;
      const double markups = markups_.MOH * m + markups_.MTX * m + markups_.MMU * m +
                             markups_.MIOH * m + markups_.MITX * m + markups_.MIMU * m;
      dollars = Raised(m + markups);
      CheckFigures({dollars}, system);
    }
    const DollarColumn column(office_, dollars, 13);
    AddDetail(Begin() % block.material % BlankView(21 - block.material.size()) %
                  BlankView(14 - shown.Size()) % shown.View() % u' ' % block.orderUnit % u"(s)" %
                  BlankView(5 - block.orderUnit.size()) % column.Blanks() % column.Figure() %
                  column.Cents(),
              group);
  }

  void LaborLine(const PricedBlock& block, double quantity, Group& group) const {
    const QString& system = shelf_.Asked();
    const double manhours = Manhours(block, quantity, system, group.standing);
    group.standing.manhours = manhours;
    group.manhours.push_back(manhours);
    const double hundredths = Truncated(manhours * 100 + 0.5);
    CheckFigures({hundredths}, system);
    const FigureText shown = FigureText::WithPoint(hundredths);
    double dollars = 0;
    if (office_) {
      const double labor = manhours * block.wage;
      const double markups =
          Rounded(markups_.LOH * labor + markups_.LTX * labor + markups_.LMU * labor +
                  markups_.MIOH * labor + markups_.MITX * labor + markups_.MIMU * labor);
      dollars = Rounded(labor + markups);
      CheckFigures({dollars}, system);
    }
    const DollarColumn column(office_, dollars, 14);
    AddDetail(Begin() % u"Labor" % BlankView(30 - shown.Size()) % shown.View() % u" Manhours" %
                  column.Blanks() % column.Figure() % column.Cents(),
              group);
  }

  struct SystemGroups {
    bool looked = false;
    bool shared = true;
    std::unordered_map<double, Group> byQuantity;
  };

  const ReportSource& source_;
  SystemShelf shelf_;
  MarkupFactors markups_;
  bool office_;
  StandingFigures standing_;
  std::vector<SystemGroups> groups_;  // of each system
  Group single_;
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
