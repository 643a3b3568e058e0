#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "common/tablesink.h"

namespace tamo::test {

// A table kept as texts, number cells by their number text.
class KeptTable : public TableSink {
 public:
  void Begin(const std::vector<TableColumn>& columns) override;
  void Row(std::span<const TableCell> cells, RowWeight weight) override;

  std::vector<TableColumn> columns;
  std::vector<QStringList> rows;
};

// Records and their cells as an independent reader of RFC 4180 sees them.
std::vector<QStringList> ReadCsv(const QByteArray& bytes);

// Two hundred columns and names that a spreadsheet or a reader could take for something else.
inline const QStringList kStrangeNames = {
    QStringLiteral("Wall, painted"),
    QStringLiteral("5/8\" board"),
    QStringLiteral("=SUM(A1:A9)"),
    QStringLiteral("+1"),
    QStringLiteral("-2 coats"),
    QStringLiteral("@home"),
    QStringLiteral("'=1+1"),
    QStringLiteral("'quoted'"),
    QString::fromUtf8("Ceiling \xC3\xA9t\xC3\xA9 \xE5\xA4\xA9\xE4\xBA\x95 \xF0\x9F\x8F\x97"),
    QStringLiteral("two\r\nlines"),
    QStringLiteral(" blanks "),
    QStringLiteral("<b>&amp;"),
    QStringLiteral("_x0041_"),
    QStringLiteral("tab\tin it"),
    QStringLiteral("\"")};

}  // namespace tamo::test
