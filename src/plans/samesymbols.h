#pragma once

#include <QTimer>
#include <vector>

#include "plans/likesearch.h"
#include "plans/newspost.h"
#include "plans/plankey.h"

namespace tamo {

class EnginePlan;
class PdfDraw;

// "Find Same": a box drawn around a symbol finds its likes on the sheet; each is shown for yes or
// no, then those that were accepted are counted.
class SameSymbols {
 public:
  enum class Answer { None, Yes, No };

  explicit SameSymbols(PdfDraw& viewer);

  void Start();                      // the next box is drawn around a symbol
  void TakeBox(const PageBox& box);  // it is drawn
  void Follow();                     // another page or plan is in front: it ends
  void Leave();                      // another tool is taken: it ends
  bool TakeKey(PlanKey key);         // true when the key was one of its own
  // The sheet is read, or the search is done. While it goes on, how far it is is told every moment.
  void GoOn();
  void Finish(int patience);  // the same, waited for
  bool Busy() const { return state_ == State::Reading || state_ == State::Looking; }

  bool Boxing() const { return state_ == State::Boxing; }  // the box is not drawn yet

  // What is painted while it asks.
  bool Asking() const { return state_ == State::Asking; }
  int Page() const { return page_; }
  const std::vector<Like>& Likes() const { return likes_; }
  const std::vector<Answer>& Answers() const { return answers_; }
  size_t Current() const { return current_; }

 private:
  enum class State { Idle, Boxing, Reading, Looking, Asking };

  void Begin();
  void Step();
  void TellProgress();
  void TakeFound(LikesFound found);
  void DropCounted();
  void Reply(Answer answer);
  void ReplyAll();
  void Back();
  void Ask();
  void Count();
  void End(const QString& words);
  void Tell(const QString& words);
  void Repaint() const;

  PdfDraw& viewer_;
  State state_ = State::Idle;
  NewsPost found_;  // from the thread that looks
  QTimer moment_;   // until it is told again how far the search is
  LikeSearch search_;
  std::weak_ptr<EnginePlan> plan_;
  int page_ = 0;
  PageBox box_;
  std::vector<Like> likes_;  // that are asked about
  std::vector<Answer> answers_;
  size_t current_ = 0;
  size_t counted_ = 0;  // left out: a circle stands there already
};

}  // namespace tamo
