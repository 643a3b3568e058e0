#pragma once

#include <QIcon>
#include <QString>
#include <functional>

#include "common/programfolder.h"
#include "common/services.h"

namespace tamo {

// Message boxes over the window in front.
class BoxMessages : public Messages {
 public:
  void Tell(const QString& text) override;
  bool Ask(const QString& text) override;
  // Called before a box comes up: the windows behind it show what has been done so far.
  std::function<void()> beforeBox;
};

class DeskClipboard : public Clipboard {
 public:
  void Clear() override;
  void SetText(const QString& text) override;
};

// The program's icon in all its sizes, from the pictures in its folder.
QIcon ProgramIcon(const QString& programFolder);

}  // namespace tamo
