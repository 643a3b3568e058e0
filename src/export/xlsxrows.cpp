#include <QHash>
#include <QXmlStreamReader>
#include <algorithm>

#include "common/numbers.h"
#include "export/packedfile.h"
#include "export/sheetrows.h"

namespace tamo {
namespace {

constexpr int kLastRow = 1048576;  // that a sheet can have

SheetRows Refused(const char* why) {
  return {{}, QLatin1String(why)};
}

// The number of a column, from 0, by the letters of a cell's name: 1 of "B7". -1 for none.
qsizetype ColumnOf(QStringView cell) {
  qsizetype column = 0;
  for (const QChar c : cell) {
    if (c < u'A' || c > u'Z') break;
    column = column * 26 + (c.unicode() - u'A' + 1);
    if (column > kMostSheetColumns) break;
  }
  return column - 1;
}

// What a writer of workbooks makes of a character that no XML holds: _x0009_ for a tab.
QString Unescaped(const QString& text) {
  if (!text.contains(QLatin1String("_x"))) return text;
  QString plain;
  for (qsizetype i = 0; i < text.size(); ++i) {
    bool is = false;
    if (text[i] == u'_' && i + 6 < text.size() && text[i + 1] == u'x' && text[i + 6] == u'_') {
      const int code = QStringView(text).mid(i + 2, 4).toInt(&is, 16);
      if (is) {
        plain += QChar(static_cast<char16_t>(code));
        i += 6;
      }
    }
    if (!is) plain += text[i];
  }
  return plain;
}

// No workbook declares entities; a few bytes of them grow to any size.
void RefuseDeclarations(QXmlStreamReader& reader) {
  if (reader.isDTD()) reader.raiseError(QStringLiteral("declarations"));
}

// The texts that the sheets share, and the pieces of a text that is set in several faces. False
// when they are damaged.
bool SharedTexts(const QByteArray& xml, QStringList& texts) {
  QXmlStreamReader reader(xml);
  bool phonetic = false;
  while (!reader.atEnd()) {
    reader.readNext();
    RefuseDeclarations(reader);
    if (reader.name() == QLatin1String("rPh")) phonetic = reader.isStartElement();
    if (!reader.isStartElement()) continue;
    if (reader.name() == QLatin1String("si")) texts += QString();
    if (reader.name() == QLatin1String("t") && !texts.isEmpty() && !phonetic)
      texts.last() += reader.readElementText();
  }
  for (QString& text : texts) text = Unescaped(text);
  return !reader.hasError();
}

class SheetReader {
 public:
  SheetReader(const QByteArray& xml, const QStringList& shared) : reader_(xml), shared_(shared) {}

  SheetRows Read() {
    while (!reader_.atEnd() && read_.problem.isEmpty()) {
      reader_.readNext();
      RefuseDeclarations(reader_);
      if (reader_.isStartElement() && reader_.name() == QLatin1String("row")) BeginRow();
      if (reader_.isEndElement() && reader_.name() == QLatin1String("row")) EndRow();
      if (reader_.isStartElement() && reader_.name() == QLatin1String("c")) Cell();
    }
    if (reader_.hasError() && read_.problem.isEmpty()) return Refused("its first sheet is damaged");
    return std::move(read_);
  }

 private:
  void BeginRow() {
    const int number = reader_.attributes().value(QLatin1String("r")).toInt();
    row_ = {number > 0 && number <= kLastRow ? number : row_.line + 1, {}};
  }

  void EndRow() {
    const bool empty = std::all_of(row_.cells.begin(), row_.cells.end(),
                                   [](const QString& cell) { return cell.isEmpty(); });
    if (!empty) read_.rows.push_back(row_);
    if (read_.rows.size() > kMostSheetRows)
      read_.problem = QStringLiteral("there are more than %1 rows").arg(kMostSheetRows);
  }

  void Cell() {
    const QString type = reader_.attributes().value(QLatin1String("t")).toString();
    qsizetype column = ColumnOf(reader_.attributes().value(QLatin1String("r")));
    if (column < 0) column = row_.cells.size();
    if (column >= kMostSheetColumns) {
      read_.problem = QStringLiteral("row %1 has too many cells").arg(row_.line);
      return;
    }
    QString text;
    while (!reader_.atEnd()) {
      reader_.readNext();
      if (reader_.isEndElement() && reader_.name() == QLatin1String("c")) break;
      if (!reader_.isStartElement()) continue;
      if (reader_.name() == QLatin1String("v") || reader_.name() == QLatin1String("t"))
        text += reader_.readElementText();
    }
    const QString meant = Meant(type, text);
    cells_ += std::max<qint64>(0, column + 1 - row_.cells.size());
    letters_ += meant.size();
    if (cells_ > kMostSheetCells || letters_ > kMostSheetLetters) {
      read_.problem = QStringLiteral("its first sheet holds too much");
      return;
    }
    while (row_.cells.size() <= column) row_.cells += QString();
    row_.cells[column] = meant;
  }

  QString SharedText(const QString& text) {
    bool is = false;
    const int number = text.toInt(&is);
    if (is && number >= 0 && number < shared_.size()) return shared_[number];
    if (!text.isEmpty())
      read_.problem = QStringLiteral("row %1 has a text that is missing").arg(row_.line);
    return {};
  }

  QString Meant(const QString& type, const QString& text) {
    if (type == QLatin1String("s")) return SharedText(text);
    if (!type.isEmpty() && type != QLatin1String("n")) return Unescaped(text);
    bool is = false;
    const double number = text.toDouble(&is);
    return is && qAbs(number) < 1e15 ? NumberText(number) : text;
  }

  QXmlStreamReader reader_;
  const QStringList& shared_;
  SheetRows read_;
  SheetRow row_;
  qint64 cells_ = 0;  // taken so far
  qint64 letters_ = 0;
};

// The part of the package that holds the first sheet, in the order of the book.
QByteArray FirstSheet(const PackedFile& file) {
  QByteArray book;
  QByteArray relations;
  if (!file.Read("xl/workbook.xml", kMostSheetBytes, book) ||
      !file.Read("xl/_rels/workbook.xml.rels", kMostSheetBytes, relations))
    return "xl/worksheets/sheet1.xml";
  QString id;
  QXmlStreamReader sheets(book);
  while (!sheets.atEnd() && id.isEmpty()) {
    sheets.readNext();
    RefuseDeclarations(sheets);
    if (!sheets.isStartElement() || sheets.name() != QLatin1String("sheet")) continue;
    for (const QXmlStreamAttribute& one : sheets.attributes()) {
      if (one.name() == QLatin1String("id")) id = one.value().toString();
    }
  }
  QXmlStreamReader targets(relations);
  while (!targets.atEnd()) {
    targets.readNext();
    RefuseDeclarations(targets);
    if (!targets.isStartElement()) continue;
    if (targets.attributes().value(QLatin1String("Id")) != id) continue;
    const QString target = targets.attributes().value(QLatin1String("Target")).toString();
    return (target.startsWith(u'/') ? target.mid(1) : QStringLiteral("xl/") + target).toUtf8();
  }
  return "xl/worksheets/sheet1.xml";
}

}  // namespace

SheetRows ReadXlsxRows(const QByteArray& bytes) {
  if (bytes.size() > kMostSheetBytes) return Refused("it is larger than 64 MB");
  const PackedFile file(bytes);
  if (!file.Whole()) return Refused("it is damaged or cut off");
  QByteArray xml;
  if (!file.Read(FirstSheet(file), kMostSheetBytes, xml))
    return Refused("it holds no sheet that can be read");
  QByteArray texts;
  const QByteArray shared = "xl/sharedStrings.xml";
  if (file.Has(shared) && !file.Read(shared, kMostSheetBytes, texts))
    return Refused("its texts are damaged");
  QStringList sharedTexts;
  if (!texts.isEmpty() && !SharedTexts(texts, sharedTexts)) return Refused("its texts are damaged");
  return SheetReader(xml, sharedTexts).Read();
}

}  // namespace tamo
