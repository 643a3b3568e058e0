#pragma once

#include <functional>
#include <memory>

namespace tamo {

// Brings news from any thread to the one on which it was made: the event loop of that thread hands
// them over in their order, or Run does where none runs. What is still on its way when it goes is
// dropped.
class FormsQueue {
 public:
  using News = std::function<void()>;

  FormsQueue();
  ~FormsQueue();
  FormsQueue(const FormsQueue&) = delete;
  FormsQueue& operator=(const FormsQueue&) = delete;

  // For the threads; may be called for ever.
  std::function<void(News)> Poster() const;
  // Hands over what is there by now; true when there was anything.
  bool Run();

 private:
  struct State;
  static bool HandOver(const std::shared_ptr<State>& state);
  std::shared_ptr<State> state_;
};

}  // namespace tamo
