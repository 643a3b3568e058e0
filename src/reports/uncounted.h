#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

namespace tamo {

// What a report did not count: files that a list names and that are missing or can't be read, and
// takeoff lines without a quantity. It stands above all other notes, and on paper.
class Uncounted {
 public:
  // `what` names the thing as the estimator knows it (The room "101"); `error` is why it could not
  // be read.
  void File(const QString& what, const QString& path, int error);
  // The file is counted, but `lines` of its lines are not.
  void Lines(const QString& what, const QString& path, int lines);
  void Add(const QString& text);

  // One sentence each; beyond the first kMostNamed there is one for all the others.
  QStringList Sentences() const;

  static constexpr int kMostNamed = 20;

 private:
  QStringList named_;
  int more_ = 0;
};

// A takeoff line that is not empty and has no digit in `quantity`, its quantity column.
bool LacksQuantity(QStringView line, QStringView quantity);

}  // namespace tamo
