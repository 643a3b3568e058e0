#pragma once

#include <QFrame>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <functional>

namespace tamo {

class Display;
class Program;

// What is offered under the field that is being typed in: the names, and which keys take one. It
// lies over its window and takes neither focus nor keys. Where the form's own list is open under
// the field, it stands beside that.
class SuggestionView : public QFrame {
 public:
  explicit SuggestionView(QWidget& window);

  void SetRows(const QStringList& rows, int walked);
  void PlaceUnder(const QWidget& field, const QWidget* openList);
  QListWidget& Names() const { return *names_; }
  std::function<void(int row)> onTake;

 private:
  QRect Beside(const QRect& list, QRect place, int needed) const;

  QListWidget* names_;
  QLabel* keys_;
};

// Shows, moves or hides the view after an event of the program; `view` belongs to the window it
// lies over and is made when it is first needed.
void ShowSuggestions(Program& program, const Display& display, QPointer<SuggestionView>& view);

}  // namespace tamo
