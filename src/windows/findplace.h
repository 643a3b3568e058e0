#pragma once

#include <QPlainTextEdit>
#include <QString>
#include <functional>

#include "common/textrows.h"
#include "windows/listbinding.h"

namespace tamo {

// Something that is looked through line by line: a list of rows, or a text.
class FindPlace {
 public:
  virtual ~FindPlace() = default;
  virtual bool Visible() const = 0;
  virtual ListRows Rows() const = 0;
  virtual void Mark(const QString& text) = 0;  // wherever it stands; "" takes all marks away
  virtual void GoTo(int row) = 0;              // into sight; -1 for none
  virtual bool Choose(int /*row*/) {
    return false;
  }  // as a click on it; false where that means nothing
  // In words: which row it is, how many hold the text, and what is not looked through yet.
  virtual QString Where(int row) const { return QStringLiteral("Line %1").arg(row + 1); }
  virtual QString Holding(int rows) const;
  virtual QString Rest() const { return {}; }
  std::function<void()> onMore;  // rows were added behind the others
};

class FindInRows : public FindPlace {
 public:
  FindInRows(RowsView& view, Display& display, OrderedList* list)
      : view_(view), display_(display), list_(list) {}
  bool Visible() const override { return view_.isVisible(); }
  ListRows Rows() const override { return view_.Model().Rows(); }
  void Mark(const QString& text) override { view_.SetFound(text); }
  void GoTo(int row) override { view_.SetWalked(row); }
  bool Choose(int row) override;

 private:
  RowsView& view_;
  Display& display_;
  OrderedList* list_;
};

class FindInText : public FindPlace {
 public:
  explicit FindInText(QPlainTextEdit& edit) : edit_(edit) {}
  bool Visible() const override { return edit_.isVisible(); }
  ListRows Rows() const override;
  void Mark(const QString& text) override;
  void GoTo(int row) override;

 private:
  void ShowMarks();

  QPlainTextEdit& edit_;
  QString text_;
  int row_ = -1;
};

}  // namespace tamo
