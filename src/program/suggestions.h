#pragma once

#include <functional>
#include <vector>

#include "program/nameuses.h"

namespace tamo {

// The names that may be meant, under the field that is being typed in: an offer beside the form's
// own lists, which it never touches. Down and Up walk through it, Enter takes the row that was
// walked to, End the same or the first one, Escape closes it. Taking fills the field as typing does
// and goes nowhere; a plain Enter takes what was typed, and the chain goes on as ever.
class Suggestions {
 public:
  struct Source {
    TextField& field;
    const OrderedList& names;
    NameKind kind;
  };
  // The fields and lists outlive it.
  Suggestions(const Kit& kit, const std::vector<Source>& sources);

  // The field under which the offer stands, nullptr when there is none.
  TextField* Field() const { return source_ == nullptr ? nullptr : &source_->field; }
  const QStringList& Rows() const { return rows_; }
  int Walked() const { return walked_; }  // -1 for none
  // A row was clicked.
  void Take(int row);

  // For the Desk.
  bool TakeKey(const Control& control, const Key& key);
  void Edited(TextField& field);
  // After each event: the offer goes with the focus, and with the text it was made for.
  void Follow();

  static constexpr int kMost = 8;  // rows

 private:
  struct Indexed {
    Source source;
    SuggestionIndex index;
    unsigned revision = 0;
    bool made = false;
  };
  Indexed* Of(const Control& control);
  void Fill(int row);
  void Close();
  bool Walk(int row);
  bool AtTextEnd() const;

  const Kit kit_;
  std::vector<Indexed> sources_;
  UsesOfNames uses_{kit_};
  const Source* source_ = nullptr;
  QString text_;  // for which the rows were found
  QStringList rows_;
  int walked_ = -1;
};

}  // namespace tamo
