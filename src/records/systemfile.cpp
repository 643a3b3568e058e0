#include "records/systemfile.h"

#include "common/textlines.h"
#include "records/materialblock.h"

namespace tamo {
namespace {

constexpr char kEndMark[] = "\x01";
constexpr char kLineEnd[] = "\r\n";

}  // namespace

SystemFile ScanSystemFile(QStringView text, LineScanner& rows) {
  SystemFile system;
  rows = LineScanner(text);
  QStringView line;
  for (QString* field :
       {&system.description, &system.units, &system.unitPrice, &system.lineColor}) {
    if (!rows.Next(line)) break;
    *field = line.toString();
    ++system.reached;
  }
  while (rows.Next(line) && line != QLatin1String(kEndMark))
    system.notes.append(line).append(QLatin1String(kLineEnd));
  rows.Next(line);
  rows.Next(line);
  return system;
}

SystemFile ReadSystemFile(const QString& text) {
  LineScanner rows;
  SystemFile system = ScanSystemFile(text, rows);
  QStringView line;
  while (rows.Next(line)) system.blocks += line.toString();
  return system;
}

int ReadSystemFile(Files& files, const QString& path, SystemFile& system) {
  QString text;
  const int error = files.ReadText(path, text);
  system = ReadSystemFile(text);
  return error;
}

int ReadSystemHeadDelimited(Files& files, const QString& path, SystemHead& head) {
  QStringList fields;
  const int error = files.ReadFields(path, fields);
  head = {fields.value(1), fields.value(3)};
  return error;
}

QStringList StoredBlocks(const QStringList& system) {
  QStringList rows;
  for (qsizetype row = 0; row < system.size(); row += kBlockRows) {
    if (!system[row].isEmpty()) rows += MaterialBlock::At(system, row).Rows();
  }
  return rows;
}

QString StorableNotes(const QString& notes) {
  QString text = notes;
  text.replace(QLatin1String(kLineEnd), QLatin1String("\n"));
  text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  if (text.contains(QLatin1String(kEndMark))) {
    QStringList lines = text.split(QLatin1Char('\n'));
    for (QString& line : lines) {
      if (line == QLatin1String(kEndMark)) line += QLatin1Char(' ');
    }
    text = lines.join(QLatin1Char('\n'));
  }
  return text.replace(QLatin1Char('\n'), QLatin1String(kLineEnd));
}

QString SystemFileText(const SystemFile& system) {
  return JoinedLines({system.description, system.units, system.unitPrice, system.lineColor,
                      StorableNotes(system.notes), QString::fromLatin1(kEndMark), QString(),
                      QString()}) +
         JoinedLines(StoredBlocks(system.blocks));
}

QString MasterSystemPath(const SharedFields& shared, const QString& name) {
  return DataFolder(shared).SystemFile(name);
}

QString ProjectSystemPath(const SharedFields& shared, const QString& name) {
  return ProjectFolder(shared).SystemFile(name);
}

}  // namespace tamo
