#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QTimer>
#include <memory>
#include <vector>

#include "windows/findplace.h"

namespace tamo {

// Finds a text in what its window shows: all places are marked, Enter goes to the next line that
// holds it and leaves the field, from where N and Shift+N go on, round the end; Space takes the
// row, as a click would; Escape puts the bar away. The rows stay as they are. Millions of rows are
// looked through in slices, so that the window answers meanwhile.
class FindBar : public QWidget {
 public:
  // `what` names the place for a reader of screens: "the report".
  FindBar(std::vector<std::unique_ptr<FindPlace>> places, Display& display, const QString& what);
  void Open();
  // Ctrl+F in the window opens it.
  void OpenByKey(QWidget& window);
  // Called before the bar looks where to find; it may bring up a list.
  std::function<void()> beforeOpen;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  FindPlace* Place() const;
  void MakeButtons();
  void Close();
  void Choose();
  void TextChanged();
  void Go(int step);
  void LookAtMore();
  void LookOn();
  void LookAtNextRow();
  void TellResult();

  // A look through all rows for the next one that holds a text, and then for how many do.
  struct Search {
    ListRows rows;
    QString text;
    int step = 1;
    int at = -1;   // the row that was looked at last, or the one that was found
    int left = 0;  // rows to look at for the next one
    bool hit = false;
    bool shown = false;
    int counted = 0;  // rows
    int holding = 0;  // of them

    bool Holds(int row) const { return rows.At(row).contains(text, Qt::CaseInsensitive); }
    bool Looking() const { return !hit && left > 0; }
    bool Done() const { return !Looking() && (!hit || counted == rows.Count()); }
  };

  std::vector<std::unique_ptr<FindPlace>> places_;
  Display& display_;
  QLineEdit* edit_;
  QLabel* result_;
  FindPlace* place_ = nullptr;  // that is looked through
  int row_ = -1;
  Search search_;
  bool more_ = false;  // rows came while the first was looked for
  QTimer slices_;
};

}  // namespace tamo
