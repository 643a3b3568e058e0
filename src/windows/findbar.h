#pragma once

#include <QLabel>
#include <QLineEdit>
#include <vector>

#include "windows/display.h"
#include "windows/rowsview.h"

namespace tamo {

// Finds a text in the rows of the list that is shown: all places are marked, Enter goes to the next
// row, Shift+Enter to the one before, Escape puts the bar away. The rows stay as they are.
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

  std::vector<RowsView*> lists_;
  Display& display_;
  QLineEdit* edit_;
  QLabel* result_;
  int row_ = -1;
};

}  // namespace tamo
