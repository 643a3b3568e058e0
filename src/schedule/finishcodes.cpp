#include "schedule/finishcodes.h"

#include <QRegularExpression>

namespace tamo {
namespace {

constexpr size_t kFirstFinish = 2;  // floor
constexpr size_t kCeiling = 8;

bool NoFinish(const QString& text) {
  static const QStringList words = {QStringLiteral("-"),     QStringLiteral("--"),
                                    QStringLiteral("N/A"),   QStringLiteral("NA"),
                                    QStringLiteral("NONE"),  QStringLiteral("\u2013"),
                                    QStringLiteral("\u2014")};
  return text.isEmpty() || words.contains(text.toUpper()) || IsDitto(text);
}

// The ceiling's cell without its height behind it.
QString FinishText(const FinishRow& row, size_t cell) {
  QString text = row.cells[cell];
  if (cell == kCeiling && !row.height.isEmpty() && text.endsWith(row.height)) {
    text.chop(row.height.size());
  }
  return text.trimmed();
}

}  // namespace

QStringList CodesOf(const QString& cell) {
  if (NoFinish(cell)) return {};
  static const QRegularExpression between(QStringLiteral(R"(\s*[/,;&+]\s*)"));
  QStringList codes;
  for (const QString& code : cell.split(between, Qt::SkipEmptyParts)) {
    if (!NoFinish(code.trimmed())) codes.append(code.trimmed());
  }
  codes.removeDuplicates();
  return codes;
}

QStringList FinishesOf(const FinishRow& row, size_t cell) {
  return CodesOf(FinishText(row, cell));
}

QStringList CodesOf(const std::vector<FinishRow>& rows) {
  QStringList codes;
  for (const FinishRow& row : rows) {
    for (size_t cell = kFirstFinish; cell <= kCeiling; ++cell) codes += FinishesOf(row, cell);
  }
  codes.removeDuplicates();
  return codes;
}

}  // namespace tamo
