#pragma once

#include <QHash>
#include <QPointer>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QWidget>

namespace tamo {

// Where the plan and a takeoff form stand together; frames, in pixels of the screen.
struct SidePlaces {
  QRect plan;
  QRect takeoff;
};

// The takeoff as a strip along the foot of the plan, or beside it where the screen is so wide that
// the plan keeps its room. `least` are the smallest sizes that the windows can take; a screen that
// is too small for both leaves the top to the plan and lays the strip over its foot.
SidePlaces PlacesSideBySide(const QRect& screen, const QSize& planLeast, const QSize& takeoffLeast);

// Puts a takeoff form beside the plan when both come to be shown, never over the sheet on which the
// estimator draws, and gives the plan its place back afterwards. What he makes of it is remembered
// for each screen.
class SideBySide {
 public:
  // `file` is an INI file; "" keeps nothing beyond this run.
  explicit SideBySide(QString file) : file_(std::move(file)) {}

  // Both are about to be on the screen, `takeoff` is that of the form `name`.
  void Arrange(const QString& name, QWidget& takeoff, QWidget& plan);
  // The takeoff is put away. The plan gets its place back when it was the last one beside it.
  void Leave(const QString& name, QWidget& takeoff);

 private:
  QString KeyOf(const QString& name, const QWidget& window) const;
  bool Remembered(const QString& key, SidePlaces& places) const;

  QString file_;
  QHash<QString, SidePlaces> kept_;
  QPointer<QWidget> plan_;  // that was moved aside
  QStringList beside_;      // for these forms
  QRect planBefore_;
  QRect planArranged_;
  bool planMaximized_ = false;
};

}  // namespace tamo
