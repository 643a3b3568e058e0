#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>

#include "windows/formwindow.h"

namespace tamo {

// Which window is in front, between the Desk, which decides it, and the window system, which may
// answer late, bring up another one, or report that the user went to one.
class WindowActivation {
 public:
  explicit WindowActivation(Desk& desk);

  // The form whose window has to come to the front, nullptr when it is there. `shownBehind`: a
  // window was shown that was to stay behind; a window system may have brought it to the front.
  Form* ToRaise(bool shownBehind);
  void Raise(FormWindow& window, bool shownBehind);

  // The window system activated `window`. A user who went there (not while the program is `syncing`
  // its windows) is told to the Desk a moment later: a click into a field comes right after and
  // says it better.
  void Activated(FormWindow& window, bool syncing);
  // The same at once, when there is something to tell.
  void TellDesk();

 private:
  Desk& desk_;
  Form* activated_ = nullptr;  // the form whose window was last brought to the front
  // A request for activation that the window system has not answered yet.
  QPointer<QWidget> asked_;
  QElapsedTimer askedSince_;
  // A window that the window system has activated, and the form that was active then.
  Form* reported_ = nullptr;
  Form* activeThen_ = nullptr;
  QTimer reportTimer_;
};

}  // namespace tamo
