#include "export/systemcolumns.h"

namespace tamo {
namespace {

constexpr const char* kNames[] = {
    "System", "Unit",        "Unit price",  "Color",       "Material", "Order unit", "Price",
    "Ratio",  "Ratio reads", "Labor ratio", "Labor reads", "Waste %",  "Wage"};

struct Reading {
  const char* tag;
  const char* words;
};
constexpr Reading kReadings[] = {{kUpo, "units per order unit"},
                                 {kOpu, "order units per unit"},
                                 {kUpm, "units per manhour"},
                                 {kMpu, "manhours per unit"}};

ColumnKind KindOf(SystemColumn column) {
  switch (column) {
    case SystemColumn::UnitPrice:
    case SystemColumn::Price:
    case SystemColumn::Wage:
      return ColumnKind::Money;
    case SystemColumn::Ratio:
    case SystemColumn::LaborRatio:
    case SystemColumn::Waste:
      return ColumnKind::Number;
    default:
      return ColumnKind::Text;
  }
}

}  // namespace

QString NameOf(SystemColumn column) {
  return QLatin1String(kNames[static_cast<size_t>(column)]);
}

std::vector<TableColumn> SystemColumns() {
  std::vector<TableColumn> columns;
  for (size_t i = 0; i < static_cast<size_t>(SystemColumn::Count); ++i) {
    const auto column = static_cast<SystemColumn>(i);
    const bool wide = column == SystemColumn::System || column == SystemColumn::Material ||
                      column == SystemColumn::RatioReads || column == SystemColumn::LaborReads;
    columns.push_back({NameOf(column), KindOf(column), wide ? 24 : 12});
  }
  return columns;
}

QString ReadingOf(const QString& tag) {
  for (const Reading& reading : kReadings) {
    if (tag == QLatin1String(reading.tag)) return QLatin1String(reading.words);
  }
  return {};
}

QString TagOf(const QString& reading) {
  for (const Reading& one : kReadings) {
    if (reading.compare(QLatin1String(one.words), Qt::CaseInsensitive) == 0 ||
        reading.compare(QLatin1String(one.tag), Qt::CaseInsensitive) == 0)
      return QLatin1String(one.tag);
  }
  return {};
}

}  // namespace tamo
