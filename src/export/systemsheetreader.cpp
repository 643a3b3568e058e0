#include <QHash>
#include <algorithm>
#include <array>

#include "common/failure.h"
#include "common/numbers.h"
#include "common/paths.h"
#include "export/systemcolumns.h"
#include "export/systemsheet.h"
#include "pricing/unitprice.h"
#include "records/namelists.h"

// A sheet of systems, checked line by line.

namespace tamo {
namespace {

constexpr qsizetype kLongestSystem = 20;
constexpr qsizetype kLongestUnit = 5;
constexpr int kMostProblems = 30;

// No figure has more digits than this; far longer ones no number can hold.
constexpr qsizetype kLongestNumber = 300;

bool IsNumber(const QString& text) {
  if (text.size() > kLongestNumber) return false;
  bool digit = false;
  bool point = false;
  for (qsizetype i = text.startsWith(u'-') || text.startsWith(u'+') ? 1 : 0; i < text.size(); ++i) {
    if (text[i] == u'.' && !point) {
      point = true;
    } else if (text[i] >= u'0' && text[i] <= u'9') {
      digit = true;
    } else {
      return false;
    }
  }
  return digit;
}

// Texts that mean the same number are the same; a missing number is 0.
bool SameNumber(const QString& a, const QString& b) {
  return a == b || Value(a) == Value(b);
}

bool SameBlock(const MaterialBlock& a, const MaterialBlock& b) {
  return a.material == b.material && a.orderUnits == b.orderUnits && SameNumber(a.price, b.price) &&
         SameNumber(a.upo, b.upo) && a.upoTag == b.upoTag && SameNumber(a.mnhrPO, b.mnhrPO) &&
         a.mnhrTag == b.mnhrTag && SameNumber(a.waste, b.waste) &&
         SameNumber(a.wageRate, b.wageRate);
}

// What is another in words; "" for nothing.
QString Differences(const SystemFile& then, const SystemFile& now) {
  QStringList parts;
  if (then.units != now.units)
    parts += QStringLiteral("unit %1 instead of %2").arg(now.units, then.units);
  if (!SameNumber(then.unitPrice, now.unitPrice))
    parts +=
        QStringLiteral("unit price %1 instead of %2")
            .arg(now.unitPrice, then.unitPrice.isEmpty() ? QStringLiteral("none") : then.unitPrice);
  if (then.lineColor != now.lineColor) parts += QStringLiteral("another color");
  const QStringList before = StoredBlocks(then.blocks);
  const qsizetype rows = std::max(before.size(), now.blocks.size());
  int changed = 0;
  for (qsizetype row = 0; row < rows; row += kBlockRows) {
    if (!SameBlock(MaterialBlock::At(before, row), MaterialBlock::At(now.blocks, row))) ++changed;
  }
  if (before.size() != now.blocks.size())
    parts += QStringLiteral("%1 materials instead of %2")
                 .arg(now.blocks.size() / kBlockRows)
                 .arg(before.size() / kBlockRows);
  else if (changed > 0)
    parts +=
        changed == 1 ? QStringLiteral("one material") : QStringLiteral("%1 materials").arg(changed);
  return parts.join(QStringLiteral(", "));
}

class Checker {
 public:
  Checker(Files& files, const DataFolder& data) : files_(files), data_(data) {}

  SystemSheet Read(const SheetRows& rows) {
    if (!rows.problem.isEmpty()) {
      sheet_.problems += QStringLiteral("The sheet can't be read: %1.").arg(rows.problem);
    } else if (rows.rows.empty() || !FindColumns(rows.rows.front())) {
      sheet_.problems += QStringLiteral(
          "The first row does not name the columns. Save the systems as a sheet once: it has "
          "them.");
    } else {
      for (size_t i = 1; i < rows.rows.size(); ++i) Line(rows.rows[i]);
      if (systems_.empty() && sheet_.problems.isEmpty())
        sheet_.problems += QStringLiteral("The sheet names no system.");
      if (sheet_.problems.isEmpty()) Compare();
    }
    return std::move(sheet_);
  }

 private:
  void Refuse(const QString& why) {
    if (sheet_.problems.size() < kMostProblems)
      sheet_.problems += QStringLiteral("Line %1: %2").arg(line_).arg(why);
  }

  bool FindColumns(const SheetRow& head) {
    places_.fill(-1);
    for (qsizetype i = 0; i < head.cells.size(); ++i) {
      for (size_t column = 0; column < places_.size(); ++column) {
        if (head.cells[i].trimmed().compare(NameOf(static_cast<SystemColumn>(column)),
                                            Qt::CaseInsensitive) == 0)
          places_[column] = i;
      }
    }
    return places_[static_cast<size_t>(SystemColumn::System)] >= 0 &&
           places_[static_cast<size_t>(SystemColumn::Unit)] >= 0;
  }

  QString Cell(SystemColumn column) const {
    const qsizetype place = places_[static_cast<size_t>(column)];
    return place < 0 || cells_ == nullptr ? QString() : cells_->value(place).trimmed();
  }

  // A number of at least 0, or `least` when it must be more.
  QString Number(SystemColumn column, bool needed, bool mayBeZero) {
    QString text = Cell(column);
    if (text.isEmpty()) {
      if (needed) Refuse(QStringLiteral("%1 is missing.").arg(NameOf(column)));
    } else if (!IsNumber(text)) {
      Refuse(QStringLiteral("%1 \"%2\" is no number. Digits and a point are read, nothing else.")
                 .arg(NameOf(column), text.left(40)));
    } else if (Value(text) < 0) {
      Refuse(QStringLiteral("%1 %2 is below 0.").arg(NameOf(column), text));
    } else if (Value(text) == 0 && !mayBeZero) {
      Refuse(QStringLiteral("%1 is 0, and nothing can be divided by it.").arg(NameOf(column)));
    } else {
      return NumberText(Value(text));
    }
    return {};
  }

  QString Money(SystemColumn column, bool needed) {
    const QString text = Number(column, needed, true);
    const QString money = PriceFormat::MakeMoney(text);
    // More than cents is kept as it is.
    return text.isEmpty() || Value(money) != Value(text) ? text : money;
  }

  void Line(const SheetRow& row) {
    line_ = row.line;
    cells_ = &row.cells;
    for (qsizetype i = 0; i < row.cells.size(); ++i) {
      const bool control = std::any_of(row.cells[i].begin(), row.cells[i].end(),
                                       [](QChar c) { return c.unicode() < 0x20; });
      if (control) return Refuse(QStringLiteral("A cell holds a line end or a control character."));
    }
    const QString name = Cell(SystemColumn::System);
    QString refusal = NameRefusal(name);
    if (refusal.isEmpty() &&
        (name.size() > kLongestSystem || name.contains(u',') || name.contains(u'"')))
      refusal = QStringLiteral(
                    "\"%1\" can't be a system's name: at most %2 characters, without comma and "
                    "quotation mark.")
                    .arg(name.left(40))
                    .arg(kLongestSystem);
    if (!refusal.isEmpty()) return Refuse(refusal);
    Head(name);
    if (!Cell(SystemColumn::Material).isEmpty()) Material();
  }

  // What a system has but once: a later row repeats it, or leaves it blank.
  void Head(const QString& name) {
    const auto known = byName_.constFind(name.toCaseFolded());
    const bool first = known == byName_.constEnd();
    SystemFile head;
    head.description = name;
    head.units = Cell(SystemColumn::Unit);
    head.unitPrice = Money(SystemColumn::UnitPrice, false);
    head.lineColor = Cell(SystemColumn::Colour);
    CheckHead(head, first);
    if (first) {
      if (head.unitPrice.isEmpty()) head.unitPrice = QStringLiteral("0.00");
      systems_.push_back(head);
      open_ = systems_.size() - 1;
      byName_.insert(name.toCaseFolded(), open_);
      return;
    }
    open_ = *known;
    const SystemFile& above = systems_[open_];
    const auto differs = [&](const QString& own, const QString& firstOne, SystemColumn column) {
      if (!own.isEmpty() && own != firstOne)
        Refuse(QStringLiteral("%1 is %2 here and %3 above, for the same system \"%4\".")
                   .arg(NameOf(column), own, firstOne, name));
    };
    differs(head.units, above.units, SystemColumn::Unit);
    differs(head.unitPrice, above.unitPrice, SystemColumn::UnitPrice);
    differs(head.lineColor, above.lineColor, SystemColumn::Colour);
  }

  void CheckHead(const SystemFile& head, bool first) {
    const QString& unit = head.units;
    if (first && unit.isEmpty()) Refuse(QStringLiteral("Unit is missing."));
    if (unit.size() > kLongestUnit || unit.contains(u','))
      Refuse(QStringLiteral("Unit \"%1\" is no takeoff unit: at most %2 characters, without comma.")
                 .arg(unit.left(40))
                 .arg(kLongestUnit));
    const QString& colour = head.lineColor;
    const bool digits =
        std::all_of(colour.begin(), colour.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    if (!colour.isEmpty() && colour != QLatin1String("NoColor") && (!digits || colour.size() != 9))
      Refuse(QStringLiteral("Color \"%1\" is not nine digits.").arg(colour.left(40)));
  }

  QString Tag(SystemColumn column, bool (*is)(const QString&)) {
    const QString words = Cell(column);
    QString tag = TagOf(words);
    if (is(tag)) return tag;
    Refuse(QStringLiteral("%1 \"%2\" is neither \"%3\" nor \"%4\".")
               .arg(NameOf(column), words.left(40),
                    ReadingOf(QLatin1String(column == SystemColumn::RatioReads ? kUpo : kUpm)),
                    ReadingOf(QLatin1String(column == SystemColumn::RatioReads ? kOpu : kMpu))));
    return {};
  }

  void Material() {
    MaterialBlock block;
    block.material = Cell(SystemColumn::Material);
    const QString refusal = NameRefusal(block.material);
    if (!refusal.isEmpty()) Refuse(refusal);
    block.orderUnits = Cell(SystemColumn::OrderUnit);
    if (block.orderUnits.isEmpty()) Refuse(QStringLiteral("Order unit is missing."));
    block.price = Money(SystemColumn::Price, true);
    block.upoTag = Tag(SystemColumn::RatioReads, IsRatioTag);
    block.upo = Number(SystemColumn::Ratio, true, block.upoTag == QLatin1String(kOpu));
    block.mnhrTag = Tag(SystemColumn::LaborReads, IsLaborTag);
    block.mnhrPO = Number(SystemColumn::LaborRatio, true, block.mnhrTag == QLatin1String(kMpu));
    block.waste = Number(SystemColumn::Waste, false, true);
    if (block.waste.isEmpty()) block.waste = QStringLiteral("0");
    block.wageRate = Money(SystemColumn::Wage, true);
    systems_[open_].blocks += block.Rows();
  }

  void Compare() {
    QStringList names;
    const int listed = ReadNames(files_, data_, NameList::Systems, names);
    if (listed != kNoError && !IsMissing(listed)) {
      sheet_.problems +=
          QStringLiteral("The list of systems can't be read: %1.").arg(ReadReasonText(listed));
      return;
    }
    for (SystemFile& system : systems_) {
      SystemFile then;
      const QString path = files_.Resolved(data_.SystemFile(system.description));
      const int error = ReadSystemFile(files_, path, then);
      if (IsMissing(error)) {
        Add(system);
      } else if (error != kNoError) {
        sheet_.problems += QStringLiteral("The library's file of \"%1\" can't be read: %2.")
                               .arg(system.description, ReadReasonText(error));
      } else {
        Change(system, then);
      }
    }
  }

  void Add(const SystemFile& system) {
    sheet_.changes += QStringLiteral("New: %1 (%2 materials)")
                          .arg(system.description)
                          .arg(system.blocks.size() / kBlockRows);
    sheet_.systems.push_back(system);
    sheet_.newNames += system.description;
  }

  // Notes and the library's spelling of the name stay.
  void Change(SystemFile& system, const SystemFile& then) {
    if (system.lineColor.isEmpty()) system.lineColor = then.lineColor;
    const QString differences = Differences(then, system);
    if (differences.isEmpty()) {
      ++sheet_.same;
      return;
    }
    sheet_.changes += QStringLiteral("Changed: %1: %2").arg(then.description, differences);
    system.description = then.description;
    system.notes = then.notes;
    if (system.notes.endsWith(QLatin1String("\r\n"))) system.notes.chop(2);
    sheet_.systems.push_back(system);
  }

  Files& files_;
  const DataFolder& data_;
  SystemSheet sheet_;
  std::array<qsizetype, static_cast<size_t>(SystemColumn::Count)> places_{};
  const QStringList* cells_ = nullptr;
  int line_ = 0;
  std::vector<SystemFile> systems_;
  QHash<QString, size_t> byName_;  // where a system stands, by its name in small letters
  size_t open_ = 0;                // the system of the row
};

}  // namespace

SystemSheet ReadSystemSheet(const SheetRows& rows, Files& files, const DataFolder& data) {
  return Checker(files, data).Read(rows);
}

}  // namespace tamo
