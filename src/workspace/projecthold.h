#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

#include "common/kit.h"
#include "records/inusefile.h"

namespace tamo {

// The open project belongs to one program at a time. Whoever opens it first has it for writing and
// leaves a sign in its folder, renewed every half minute; whoever comes later reads it, and gets it
// as soon as the first one leaves. While it is another's, no file in its folder is written.
//
// A sign is taken for left behind when its program ran on this machine and is gone. One of another
// machine is taken away only when the estimator says so, after it was not renewed for two minutes
// that were watched from here: clocks of two machines differ, and a sleep is no watch.
class ProjectHold {
 public:
  explicit ProjectHold(const Kit& kit);
  ~ProjectHold();
  ProjectHold(const ProjectHold&) = delete;
  ProjectHold& operator=(const ProjectHold&) = delete;

  // The project JobID was opened or made.
  void Open();
  // No project is open. One with saves that still wait for the disk is kept until they are done.
  void Leave();
  // The program ends: nothing is kept.
  void End();
  // Every few seconds, between two events. May ask.
  void Tick();
  // In the middle of an event, while a message waits for its answer: only renews.
  void TickInEvent();

  bool ReadOnly() const { return state_ == State::Theirs; }
  // True when the open project may be changed; otherwise says who has it.
  bool NeedWritable();

  // The open project became readable only, or writable, or is no more open.
  std::function<void()> onChange;
  // It was read until now; from here on it is written. Behind onChange.
  std::function<void()> onFree;

  static constexpr int kRenewal = 30;      // seconds
  static constexpr int kPatience = 120;    // without a renewal
  static constexpr int kLongestLook = 10;  // what lies between two looks counts for no more

 private:
  enum class State { None, Mine, Theirs, Unsigned };
  struct Held {
    QString path;    // of the sign
    QString folder;  // of the project
    QDateTime renewed;
    bool lost = false;  // somebody else has it now
  };

  void Take();
  bool TakeFrom(const InUse& sign);
  void Become(State state);
  void BecomeTheirs(const InUse& sign);
  void BecomeUnsigned(int error);
  void BecomeGone();
  void FollowFolder();
  void Watch();
  bool WatchedLongEnough();
  int RenewIfDue(Held& held, int seconds);
  void RenewKept();
  void SayLost();
  void AskAboutWaiting();
  bool Gone(const InUse& sign) const;
  bool Here(const InUse& sign) const;
  QStringList WaitingBelow(const QString& folder) const;
  bool MayWrite(const QString& path);
  void Say(const QString& readOnly, const QString& title);

  const Kit kit_;
  const ProgramRun me_;
  State state_ = State::None;
  Held held_;
  std::vector<Held> kept_;  // left, with saves that wait
  QByteArray seen_;         // the other's sign, as it stood when it last changed
  qint64 watched_ = 0;      // milliseconds since then
  QDateTime lookedAt_;
  bool declined_ = false;  // the estimator left it to the other
  QStringList refused_;    // not saved, because the project was lost meanwhile
};

}  // namespace tamo
