#pragma once

#include <functional>
#include <memory>

namespace tamo {

// Brings word that there is news from any thread to the one that made it, through its event loop.
// Word that comes while the last one waits is one piece of news.
class NewsPost {
 public:
  explicit NewsPost(std::function<void()> handler);
  ~NewsPost();
  NewsPost(const NewsPost&) = delete;
  NewsPost& operator=(const NewsPost&) = delete;

  // For threads that may outlive the post: what they tell then is heard by nobody.
  std::function<void()> Teller() const;

 private:
  struct State;
  std::shared_ptr<State> state_;
};

}  // namespace tamo
