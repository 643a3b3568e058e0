#include "reports/notebook.h"

#include <algorithm>

#include "common/numbers.h"

namespace tamo {
namespace {

constexpr size_t kRowsNamed = 8;

QString ZeroFigures(const PricedBlock& block) {
  QStringList figures;
  if (block.price == 0) figures += QStringLiteral("price");
  if (block.ratio == 0) figures += QStringLiteral("order ratio");
  if (block.manhourRatio == 0) figures += QStringLiteral("manhour ratio");
  if (block.wage == 0) figures += QStringLiteral("wage rate");
  return figures.join(QStringLiteral(", "));
}

}  // namespace

int NoteBook::Number(const QString& text) {
  const int at = texts_.Find(text);
  if (at >= 0) return at;
  notes_.push_back({text, {}});
  return texts_.Add(text);
}

void NoteBook::AddRow(int note, int row) {
  std::vector<int>& rows = notes_[static_cast<size_t>(note)].rows;
  if (row >= 0 && (rows.empty() || rows.back() != row)) rows.push_back(row);
}

void NoteBook::NoteSystem(const SystemShelf& shelf, const QString& name, int row) {
  if (!shelf.Found()) {
    NoteMissing(shelf, name, row);
  } else if (shelf.Blocks().empty() && shelf.UnitPrice() == 0) {
    Note(QStringLiteral("The system \"%1\" has no price yet.").arg(name), row);
  } else if (shelf.ReadsZero() && shelf.UnitPrice() == 0) {
    for (const PricedBlock& block : shelf.Blocks()) {
      if (block.ReadsZero()) NoteZero(block, name, row);
    }
  }
}

void NoteBook::NoteMissing(const SystemShelf& shelf, const QString& name, int row) {
  const QString price =
      shelf.UnitPrice() == 0
          ? QStringLiteral("nothing")
          : shelf.UnitPriceText() + QStringLiteral(", the unit price of the system before it");
  Note(QStringLiteral("The system \"%1\" has no file in this project: it is priced at %2.")
           .arg(name, price),
       row);
}

void NoteBook::NoteZero(const PricedBlock& block, const QString& system, int row) {
  Note(QStringLiteral("The material \"%1\" of the system \"%2\" reads 0 for: %3.")
           .arg(block.material, system, ZeroFigures(block)),
       row);
}

std::vector<ReportNote> NoteBook::Take() {
  return std::move(notes_);
}

QString NoteLine(const ReportNote& note) {
  if (note.rows.empty()) return note.text;
  QStringList rows;
  for (size_t i = 0; i < std::min(note.rows.size(), kRowsNamed); ++i)
    rows += QString::number(note.rows[i] + 1);
  QString line = note.text +
                 (note.rows.size() == 1 ? QStringLiteral(" (row ") : QStringLiteral(" (rows ")) +
                 rows.join(QStringLiteral(", "));
  if (note.rows.size() > kRowsNamed)
    line += QStringLiteral(" and %1 more").arg(note.rows.size() - kRowsNamed);
  return line + QLatin1Char(')');
}

}  // namespace tamo
