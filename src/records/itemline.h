#pragma once

#include <QString>

namespace tamo {

// One bottom line item of a project: 30 characters, the name at the left and the price ending in
// column 30.
class ItemLine {
 public:
  explicit ItemLine(const QString& text) : text_(text) {}

  // A name and a price of together more than 30 characters raise a RunTimeFailure that names them.
  static ItemLine Of(const QString& name, const QString& price);

  const QString& Text() const { return text_; }

  // The first 19 characters, trimmed: a name of 20 loses its last one, and the price gets it.
  QString Name() const;
  // Everything behind the first 19 characters, trimmed.
  QString Price() const;
  // The first 20 characters, trimmed: what the search for an item already there compares.
  QString SearchName() const;

 private:
  QString text_;
};

// The price of an item as the reports read it: the number in its last 12 characters.
double ItemPrice(const QString& item);

}  // namespace tamo
