#pragma once

#include <memory>

#include "player/stage.h"

namespace tamo::player {

// The real windows: every step becomes the key, mouse or menu event on the real widget. Makes the
// application object of this process; under the offscreen platform when there is no display.
std::unique_ptr<Stage> MakeWindowsStage();

}  // namespace tamo::player
