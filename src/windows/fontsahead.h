#pragma once

#include <future>

namespace tamo {

// Looks for the fonts of the system on a thread of its own while the program is put together: the
// first text on the screen would wait for it as long as the window system takes to begin. Where
// there is no such thread to be had, the first text waits.
class FontsAhead {
 public:
  // Before the application is made: the list of the fonts is read.
  FontsAhead();
  ~FontsAhead() { Wait(); }
  FontsAhead(const FontsAhead&) = delete;
  FontsAhead& operator=(const FontsAhead&) = delete;

  // The application is there: its fonts are taken over from that list.
  void GoOn();
  // Before the first text is measured. Nothing is done twice then.
  void Wait();

 private:
  std::promise<bool> application_;  // whether it is there
  bool going_ = false;
  std::future<void> work_;
};

}  // namespace tamo
