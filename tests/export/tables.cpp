#include "tables.h"

#include "common/numbers.h"

namespace tamo::test {

void KeptTable::Begin(const std::vector<TableColumn>& all) {
  columns = all;
}

void KeptTable::Row(std::span<const TableCell> cells, RowWeight) {
  QStringList row;
  for (const TableCell& cell : cells) {
    row += cell.GetKind() == TableCell::Kind::Number ? NumberText(cell.Number())
                                                     : cell.Text().toString();
  }
  rows.push_back(row);
}

std::vector<QStringList> ReadCsv(const QByteArray& bytes) {
  const QString text = QString::fromUtf8(bytes);
  std::vector<QStringList> records;
  QStringList record;
  QString cell;
  bool quoted = false;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar c = text[i];
    if (quoted) {
      if (c != u'"') {
        cell += c;
      } else if (i + 1 < text.size() && text[i + 1] == u'"') {
        cell += text[++i];
      } else {
        quoted = false;
      }
    } else if (c == u'"') {
      quoted = true;
    } else if (c == u',' || c == u'\r') {
      record += cell;
      cell.clear();
      if (c == u',') continue;
      records.push_back(record);
      record.clear();
      ++i;  // the line feed
    } else {
      cell += c;
    }
  }
  return records;
}

}  // namespace tamo::test
