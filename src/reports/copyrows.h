#pragma once

#include <initializer_list>
#include <memory>
#include <vector>

#include "common/textrows.h"
#include "records/linecolumns.h"
#include "reports/copyfigures.h"
#include "reports/detailrow.h"
#include "reports/pieces.h"
#include "reports/takeoffwalk.h"

namespace tamo {

// A system as a copy found it in the project, and what its detail lines are made from.
struct CopySystem {
  CopySystem(const QString& asked, std::shared_ptr<const PricedSystem> priced, bool office);

  QString name;
  std::shared_ptr<const PricedSystem> system;
  const CopyBlocks blocks;
  std::vector<DetailRow> materials;  // the line of each
  qsizetype longest = 0;             // characters of a detail line
};

// The head of a takeoff line without its money: its system at the begin, its last 28 characters at
// the end.
QString CopyHead(SheetKind kind, const QString& system, QStringView end);
// The same with what the lines below it come to at its right.
QString CopyHead(SheetKind kind, const QString& system, QStringView end, double dollars);

// The rows of a copy. Of a takeoff line whose detail lines all fit their columns only the quantity
// and the end of the line are kept, and the rows are made when they are read: millions of lines
// stand in a sixth of the memory of their text, and cost no time before somebody sees them. All
// other rows are kept as texts. What stands is a state of its own: changes of the files do not
// reach it.
class CopyRows : public RowMaker {
 public:
  explicit CopyRows(const CopyArithmetic& arithmetic);
  ~CopyRows() override;
  CopyRows(const CopyRows&) = delete;
  CopyRows& operator=(const CopyRows&) = delete;

  // The number of a system, for AddLine.
  int AddSystem(const QString& asked, const std::shared_ptr<const PricedSystem>& priced);
  const CopySystem& System(int number) const { return *systems_[static_cast<size_t>(number)]; }

  // A row as it is.
  void Add(const QString& row) { AddText(row, kRow); }
  void AddDetail(const QString& row) { AddText(row, kDetail); }
  // A takeoff line and its detail lines, of which each is what the arithmetic gives for `quantity`;
  // `figures` are those, in the order of the materials, and `dollars` all they come to. False, and
  // nothing added, when a line is none that could be made anew.
  bool AddLine(SheetKind kind, int system, QStringView end, double quantity,
               const std::vector<CopyFigures>& figures, double dollars);

  // It is a material or labor line.
  bool IsDetail(qsizetype at) const;

  qsizetype Count() const override { return count_; }
  QString Row(qsizetype at) const override;
  qsizetype SizeOf(qsizetype at) const override;
  int Longest() const override { return static_cast<int>(longest_); }
  size_t Bytes() const override;

 private:
  // A text and the rows that are made behind it.
  struct Span {
    quint32 first;  // the row of the text
    qint32 system;  // twice its number, 1 more in an area, when the text is the end of a head
    double quantity;
  };
  static constexpr qint32 kRow = -1;
  static constexpr qint32 kDetail = -2;  // a detail line as a text
  static constexpr qsizetype kMarkRows = 256;

  void AddText(const QString& row, qint32 system);
  void AddSpan(qint32 system, double quantity, qsizetype rows);
  size_t SpanAt(qsizetype row) const;
  const CopySystem& SystemOf(const Span& span) const { return System(span.system / 2); }
  static SheetKind KindOf(const Span& span) {
    return span.system % 2 == 0 ? SheetKind::Room : SheetKind::Area;
  }
  bool Fit(const CopySystem& system, const std::vector<CopyFigures>& figures) const;
  qsizetype HeadSize(SheetKind kind, const CopySystem& system, qsizetype end) const;
  std::vector<CopyFigures> FiguresOf(const Span& span) const;
  QString Head(const Span& span, const QString& end) const;
  QString Detail(const Span& span, qsizetype line) const;

  const CopyArithmetic arithmetic_;
  const DetailRow labor_;
  std::vector<std::unique_ptr<const CopySystem>> systems_;
  TextRows texts_;
  Pieces<Span> spans_;          // one for each text
  std::vector<quint32> marks_;  // the span of each 256th row
  qsizetype count_ = 0;
  qsizetype longest_ = 0;
};

}  // namespace tamo
