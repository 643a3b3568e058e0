#pragma once

#include <QString>

namespace tamo {

// The project manager's figures beside the Office Copy: what is done, in dollars and per cent.
struct ProjectProgress {
  QString ttText = QStringLiteral("0.00"), tlText = ttText, tmText = ttText;  // totals
  QString tcText = ttText, pcText;  // completed, of all lines
  QString lcText = ttText, lpText;  // of the labor lines
  QString mcText = ttText, mpText;  // of the material lines
  double completed = 0;

  // A new Office Copy: its totals, nothing done. The percentages stay as they were last shown.
  void Begin(double total, double labor, double material);
  // The box of a detail line was ticked or unticked. An unticked box shows the percentage of the
  // project with three decimals; a test holds it.
  void Tick(const QString& line, bool ticked);
};

}  // namespace tamo
