#pragma once

#include <functional>

#include "common/kit.h"
#include "export/chartdata.h"
#include "program/filechoice.h"
#include "reports/reportfiles.h"

namespace tamo {

// Reports that become files and charts.
class ReportSaver : public ReportFiles {
 public:
  explicit ReportSaver(const Kit& kit) : kit_(kit) {}

  void Save(const ShownReport& report) override;
  void ShowChart(const ShownReport& report) override;

  FileChooser onChoose;  // none: nothing is ever saved
  std::function<void(const ChartData& chart)> onChart;
  std::function<QString()> company;  // on top of each page

 private:
  int Write(const ShownReport& report, const QString& path);
  int WriteTable(const ShownReport& report, const QString& ending, class ByteSink& sink) const;
  int WritePages(const ShownReport& report, class ByteSink& sink) const;

  const Kit kit_;
};

}  // namespace tamo
