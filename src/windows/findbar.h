#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QTimer>
#include <vector>

#include "windows/display.h"
#include "windows/rowsview.h"

namespace tamo {

// Finds a text in the rows of the list that is shown: all places are marked, Enter goes to the next
// row, Shift+Enter to the one before, Escape puts the bar away. The rows stay as they are. Millions
// of rows are looked through in slices, so that the window answers meanwhile.
class FindBar : public QWidget {
 public:
  FindBar(std::vector<RowsView*> lists, Display& display);
  void Open();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  RowsView* List() const;
  void Close();
  void TextChanged();
  void Go(int step);
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

  std::vector<RowsView*> lists_;
  Display& display_;
  QLineEdit* edit_;
  QLabel* result_;
  int row_ = -1;
  Search search_;
  QTimer slices_;
};

}  // namespace tamo
