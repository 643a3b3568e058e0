#pragma once

#include "schedule/greypicture.h"

namespace tamo {

// What a program wrote of a picture's words, as PictureWordsOf has it.
struct PictureText {
  QString problem;  // in plain words; empty when it did its work
  QByteArray table;
};

// A program on this computer that reads the words of a picture.
class PictureProgram {
 public:
  virtual ~PictureProgram() = default;
  virtual bool Here() const = 0;  // it is installed
  // Blocks until it is done, stopped, or its time is over; never on the windows' thread. `block`:
  // the picture holds one table and no more.
  virtual PictureText Read(const GreyPicture& picture, bool block,
                           const std::atomic<bool>& stop) const = 0;
};

}  // namespace tamo
