#pragma once

#include <QString>
#include <QStringList>

#include "export/bytesink.h"
#include "export/tablefile.h"

namespace tamo {

// A table as JSON: an object with what it is, its columns with their types, and a row as an object
// of each line. Empty cells are left out. Remarks stand under "remarks".
class JsonFile : public TableFile {
 public:
  // `head`: names and texts that stand in front. The sink outlives this.
  JsonFile(ByteSink& sink, const QList<std::pair<QString, QString>>& head);

  void Begin(const std::vector<TableColumn>& columns) override;
  void Row(std::span<const TableCell> cells, RowWeight weight) override;
  void Remark(const QString& text) override { remarks_ += text; }
  int Finish() override;

 private:
  void Flush(qsizetype least);

  ByteSink& sink_;
  QByteArray waiting_;
  std::vector<QByteArray> names_;
  QStringList remarks_;
  bool rows_ = false;
  int error_ = 0;
};

}  // namespace tamo
