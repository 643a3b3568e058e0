#include "plaincopies.h"

#include <utility>

#include "common/columns.h"
#include "common/numbers.h"
#include "reports/linequantity.h"
#include "reports/rollup.h"
#include "reports/systemshelf.h"
#include "reports/takeoffwalk.h"

namespace tamo::test {
namespace {

class PlainMaker : public TakeoffVisitor {
 public:
  PlainMaker(const ReportSource& source, const Markups& markups, bool office)
      : source_(source), shelf_(source), markups_(markups), office_(office) {
    for (const char* line : {"Project Manager", office ? "Office Copy" : "Field Copy", ""})
      Add(QString::fromLatin1(line));
  }

  void BeginSheet(SheetKind, const QString& name) override { Add(name); }
  void EndSheet(SheetKind) override { Add({}); }

  void Line(SheetKind kind, QStringView line) override {
    shelf_.Load(SystemOfLine(line));
    QString head = QStringLiteral("   ") +
                   GrownRight(shelf_.Asked(), kind == SheetKind::Room ? 21 : 20) +
                   line.last(qMin<qsizetype>(28, line.size())).toString();
    if (shelf_.UnitPrice() != 0) head += QStringLiteral("     Unit price item");
    const qsizetype at = copy_.lines.size();
    Add(head);
    if (shelf_.UnitPrice() != 0 || shelf_.Blocks().empty()) return;
    double quantity = WholeQuantity(kind, line);
    if (kind == SheetKind::Room && !source_.wholeQuantities) quantity = QuantityAt(line, 33, 10);
    const double dollars = Details(quantity);
    copy_.total += dollars;
    if (office_)
      copy_.lines[at] += GrownLeft(MoneyText(dollars), kind == SheetKind::Room ? 28 : 26);
  }

  PlainCopy Take() {
    Add(QString(63, u'_'));
    Add({});
    if (office_) {
      Add(QStringLiteral("   This project will take %1 manhours to complete")
              .arg(NumberText(Raised(manhours_))));
      Add(QStringLiteral("   excluding all unit priced descriptions and quantities."));
      Add({});
    }
    return std::move(copy_);
  }

 private:
  void Add(const QString& line, bool detail = false) {
    copy_.lines += line;
    copy_.detail.push_back(detail);
  }

  double Details(double quantity) {
    double dollars = 0;
    for (const PricedBlock& block : shelf_.Blocks()) {
      dollars += Material(block, quantity);
      dollars += Labor(block, quantity);
    }
    CheckFigures({manhours_}, shelf_.Asked());
    return dollars;
  }

  double AddDetail(const QString& text, double dollars, qsizetype width) {
    const QString line =
        (office_ ? QStringLiteral("     ") : QStringLiteral("___  ")) + text +
        (office_ ? GrownLeft(NumberText(dollars) + QStringLiteral(".00"), width) : QString());
    Add(line, true);
    if (!office_) return 0;
    const double worth = Value(QStringView(line).last(qMin<qsizetype>(14, line.size())));
    const bool labor = SystemOfLine(line) == u"Labor";
    (labor ? copy_.labor : copy_.material) += worth;
    return worth;
  }

  double Material(const PricedBlock& block, double quantity) {
    const QString& system = shelf_.Asked();
    standing_.orderQuantity = WithWaste(block, OrderQuantity(block, quantity, system, standing_));
    const double hundredths = Truncated(standing_.orderQuantity * 100);
    CheckFigures({hundredths}, system);
    double dollars = 0;
    if (office_) {
      const double m = Value(WithPoint(hundredths)) * block.price;
      dollars = Raised(m + (markups_.MOH * m + markups_.MTX * m + markups_.MMU * m +
                            markups_.MIOH * m + markups_.MITX * m + markups_.MIMU * m));
      CheckFigures({dollars}, system);
    }
    return AddDetail(GrownRight(block.material, 21) + GrownLeft(WithPoint(hundredths), 14) +
                         QStringLiteral(" ") + block.orderUnit + QStringLiteral("(s)") +
                         GrownBlanks(5 - block.orderUnit.size()),
                     dollars, 13);
  }

  double Labor(const PricedBlock& block, double quantity) {
    const QString& system = shelf_.Asked();
    standing_.manhours = Manhours(block, quantity, system, standing_);
    manhours_ += standing_.manhours;
    const double hundredths = Truncated(standing_.manhours * 100 + 0.5);
    CheckFigures({hundredths}, system);
    double dollars = 0;
    if (office_) {
      const double l = standing_.manhours * block.wage;
      dollars = Rounded(l + Rounded(markups_.LOH * l + markups_.LTX * l + markups_.LMU * l +
                                    markups_.MIOH * l + markups_.MITX * l + markups_.MIMU * l));
      CheckFigures({dollars}, system);
    }
    return AddDetail(QStringLiteral("Labor") + GrownLeft(WithPoint(hundredths), 30) +
                         QStringLiteral(" Manhours"),
                     dollars, 14);
  }

  const ReportSource& source_;
  SystemShelf shelf_;
  const MarkupFactors markups_;
  const bool office_;
  StandingFigures standing_;
  double manhours_ = 0;
  PlainCopy copy_;
};

}  // namespace

PlainCopy MakePlainCopy(const ReportSource& source, const Markups& markups, bool office) {
  PlainMaker maker(source, markups, office);
  WalkTakeoff(source, maker);
  return maker.Take();
}

}  // namespace tamo::test
