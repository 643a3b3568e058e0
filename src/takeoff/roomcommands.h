#pragma once

#include "takeoff/roomrecord.h"

namespace tamo {

// What the menus of the room schedule do to a room and its lines: delete, insert, copy, paste.
class RoomCommands {
 public:
  // Binds the menu entries and pop-ups of `screen`. All of it outlives this.
  RoomCommands(RFSScreen& screen, RoomRecord& record, const Kit& kit, TakingBack& steps);

 private:
  void DeleteRoom();
  void DeleteLine();
  void InsertLine();
  void CopyLines();
  void PasteLines();
  bool LineIsSelected();

  RFSScreen& screen_;
  RoomRecord& record_;
  const Kit kit_;
  TakingBack& steps_;
};

}  // namespace tamo
