#pragma once

#include <QDialog>

#include "common/disk.h"
#include "export/chartdata.h"
#include "program/filechoice.h"

class QPagedPaintDevice;

namespace tamo {

// A chart in a window of its own, to be looked at, printed, or saved as a PDF.
class ChartWindow : public QDialog {
 public:
  // The disk outlives the window.
  ChartWindow(ChartData data, Disk& disk, FileChooser choose, QWidget* parent);

 private:
  void Print();
  void SaveAsPdf();

  ChartData data_;
  Disk& disk_;
  FileChooser choose_;
};

// The chart on one sheet, always dark on white; the device has its paper already.
void PaintChart(const ChartData& data, QPagedPaintDevice& device);

}  // namespace tamo
