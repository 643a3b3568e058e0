#pragma once

#include "schedule/pictureprogram.h"

namespace tamo {

// The program tesseract where the system finds it, run for each picture anew.
class Tesseract : public PictureProgram {
 public:
  static constexpr int kPatience = 60000;  // milliseconds

  explicit Tesseract(int patience = kPatience) : patience_(patience) {}
  bool Here() const override;
  PictureText Read(const GreyPicture& picture, bool block,
                   const std::atomic<bool>& stop) const override;

 private:
  const int patience_;
};

}  // namespace tamo
