#pragma once

#include <optional>

namespace tamo {

// How long a plan that is opened is waited for. Milliseconds.
class OpeningPatience {
 public:
  // How long its opening is waited for before it goes on in the background, with a blank sheet in
  // its place; 10 seconds when not set. A window wants 6 milliseconds; nobody waits for a plan that
  // is not in sight.
  void Set(int milliseconds, std::optional<int> outOfSight = {}) {
    inSight_ = milliseconds;
    outOfSight_ = outOfSight.value_or(milliseconds);
  }
  void SetSeen(bool seen) { seen_ = seen; }
  // How long it may take at all; 30 seconds when not set.
  void SetLongest(int milliseconds) { longest_ = milliseconds; }

  int Now() const { return seen_ ? inSight_ : outOfSight_; }
  int InSight() const { return inSight_; }
  int Longest() const { return longest_; }

 private:
  int inSight_ = 10000;
  int outOfSight_ = 10000;
  bool seen_ = true;
  int longest_ = 30000;
};

}  // namespace tamo
