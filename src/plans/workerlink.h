#pragma once

#include <condition_variable>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include "plans/cancelflag.h"
#include "plans/wiresocket.h"
#include "plans/workerprocess.h"

namespace tamo {

// Calls to one worker, from any thread and several at once, until it is gone. It is gone when it
// ended, said what no honest worker says, or was killed because a call took too long.
class WorkerLink {
 public:
  // Whoever lets go of it last does not wait for the end of the process.
  static std::shared_ptr<WorkerLink> To(std::unique_ptr<WorkerProcess> process);
  WorkerLink(const WorkerLink&) = delete;
  WorkerLink& operator=(const WorkerLink&) = delete;

  struct Answer {
    bool there = false;
    bool late = false;  // it took too long, and the worker was killed for it
    bool gone = false;  // the worker ended before it answered
    bool left = false;  // the worker is still at it, and frees the slot when it is done
    uint32_t call = 0;
    QByteArray body;
  };
  // What a call may need beside its message.
  struct Terms {
    int milliseconds = 20000;
    CancelFlag* cancel = nullptr;  // the call then comes back within a second
    int slot = -1;                 // of the tiles
    // Takes the parts of a long answer, and returns 0 or an error number that ends it.
    std::function<int(const QByteArray& part)> part;
  };
  Answer Call(WireKind kind, const QByteArray& body, const Terms& terms);
  void Drop(uint32_t call);  // a page that is not wanted any more; tells it with the next call

  int TakeSlot();  // waits for a free one; -1 when the worker is gone
  void GiveSlot(int slot);
  const uint32_t* Slot(int slot) const { return process_->Slot(slot); }
  void Kill() { process_->Kill(); }
  bool Gone();
  pid_t Process() const { return process_->Id(); }

 private:
  struct Waiting;
  explicit WorkerLink(std::unique_ptr<WorkerProcess> process);
  ~WorkerLink();
  void Listen();
  bool Take(WireMessage& message);
  void Send(WireKind kind, uint32_t call, const QByteArray& body);
  void SendDropped();
  Answer Await(Waiting& waiting, uint32_t call, const Terms& terms);
  void HandPart(Waiting& waiting, uint32_t call, const Terms& terms,
                std::unique_lock<std::mutex>& lock);

  std::unique_ptr<WorkerProcess> process_;
  std::mutex sending_;
  std::mutex mutex_;
  std::condition_variable slotFree_;
  std::map<uint32_t, Waiting*> waiting_;
  std::map<uint32_t, int> leftSlots_;  // of calls that nobody waits for any more
  std::vector<uint32_t> dropped_;
  bool slotTaken_[kTileSlots] = {};
  uint32_t calls_ = 0;
  bool gone_ = false;
  std::thread listener_;
};

}  // namespace tamo
