#pragma once

#include <QLabel>
#include <QListWidget>

#include "common/disk.h"
#include "windows/display.h"

namespace tamo {

// What a browser shows: the drives, the folders in a folder, or the files in a folder.
struct BrowserRow {
  QString text;
  QString path;
};
std::vector<BrowserRow> BrowserRows(Disk& disk, const FileBrowser& browser);

// A browser's list with the folder it stands on above it.
class BrowserView : public QWidget {
 public:
  explicit BrowserView(FileBrowser::Kind kind, QWidget* parent = nullptr);
  void Show(const std::vector<BrowserRow>& rows, const QString& folder, const QString& file);
  QListWidget& Rows() const { return *rows_; }
  QString PathOf(int row) const;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void ShowFolder();

  FileBrowser::Kind kind_;
  QLabel* folderLabel_;
  QListWidget* rows_;
  QString folder_;
};

// A click on a file picks it; a double click, or Enter, on a folder or a drive goes there.
class BrowserBinding : public Binding {
 public:
  BrowserBinding(Display& display, FileBrowser& browser, BrowserView& view, Disk& disk);
  QWidget& ClickTarget() const override { return *view_.Rows().viewport(); }
  void Apply() override;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  bool TakeMouse(QEvent* event);
  bool TakeKey(QKeyEvent& event);
  void PickRow(int row, bool twice);
  void ListAnew();

  FileBrowser& browser_;
  BrowserView& view_;
  Disk& disk_;
  QString listed_;
  bool wasShown_ = false;
};

}  // namespace tamo
