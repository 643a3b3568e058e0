#pragma once

#include <QObject>
#include <QPalette>
#include <QTimer>

#include "windows/look.h"

namespace tamo {

class Program;

// The look of the windows: light or dark as chosen in Settings, else as the desktop is, also when
// that changes while the program runs. The desktop says it by its palette, or by the setting that
// desktops share on their message bus; the setting has the last word.
class ChosenLook : public QObject {
 public:
  // Applies the look at once. Made before the first window.
  explicit ChosenLook(Program& program);
  ~ChosenLook() override;

  // Asks the desktop for its setting and follows it from then on; the answer comes later. Without a
  // message bus nothing happens.
  void FollowDesktop();
  // The desktop's setting: 1 dark, 2 light, 0 neither.
  void DesktopSaid(uint scheme);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void Apply();
  void AskDesktop();
  Look Wanted() const;

  Program& program_;
  QPalette desktop_;  // as the desktop has it, not the program's own
  uint scheme_ = 0;
  bool applying_ = false;
  QTimer timer_;
};

}  // namespace tamo
