#include "export/tableformats.h"

#include "common/paths.h"
#include "export/csvfile.h"
#include "export/xlsxfile.h"

namespace tamo {

QString EndingOf(const QString& path) {
  const QString name = FileNameOf(path);
  const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
  return dot > 0 ? name.mid(dot + 1).toLower() : QString();
}

std::unique_ptr<TableFile> NewTableFile(const QString& ending, ByteSink& sink,
                                        const QString& title) {
  if (ending == QLatin1String("csv")) return std::make_unique<CsvFile>(sink, true);
  if (ending == QLatin1String("xlsx")) return std::make_unique<XlsxFile>(sink, title);
  return nullptr;
}

}  // namespace tamo
