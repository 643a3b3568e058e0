#pragma once

#include <QString>
#include <stdexcept>

namespace tamo::player {

// How a scenario ended; also the exit status of the player.
enum class Outcome { Held = 0, Failed = 1, NotUnderstood = 2 };

// Why a step can't be played on: Failed when a person could not have done it, NotUnderstood when it
// names what does not exist.
class Trouble : public std::runtime_error {
 public:
  Trouble(Outcome how, const QString& reason)
      : std::runtime_error(reason.toStdString()), outcome(how), why(reason) {}
  Outcome outcome;
  QString why;
};

[[noreturn]] inline void Fail(const QString& why) {
  throw Trouble(Outcome::Failed, why);
}
[[noreturn]] inline void NotUnderstood(const QString& why) {
  throw Trouble(Outcome::NotUnderstood, why);
}

}  // namespace tamo::player
