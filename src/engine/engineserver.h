#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

#include "plans/planengine.h"
#include "plans/wiresocket.h"

namespace tamo {

// The other end of WorkerLink: does the calls of the program on one plan, several at once.
class EngineServer {
 public:
  // All outlive it. The tiles are kTileSlots of kSlotPixels.
  EngineServer(PlanEngine& engine, uint32_t* tiles) : engine_(engine), tiles_(tiles) {}
  EngineServer(const EngineServer&) = delete;
  EngineServer& operator=(const EngineServer&) = delete;

  WorkerGuard guard;  // told when the plan is opened
  // Sends a message to the program; called by one thread at a time. False when it is gone.
  std::function<bool(const WireMessage& message)> send;
  // The plan, of that many bytes.
  std::function<std::shared_ptr<FileReader>(qint64 size)> file;

  // Waits for a message of the program. False when it is gone; called by one thread at a time.
  std::function<bool(WireMessage& message)> receive;

  // Hears and does calls until the program is gone or says what no honest one says. On more threads
  // than there are ever calls in work, so that one always hears.
  void Work();
  // Takes a message of the program. False when no honest program sends it.
  bool Take(const WireMessage& message);
  // Does one call that waits, if there is one. For tests.
  bool WorkOnce();

 private:
  struct Job {
    WireMessage message;
    std::shared_ptr<CancelFlag> cancel;
  };
  void Do(const Job& job);
  QByteArray AnswerTo(const Job& job, WireReader& wire);
  QByteArray Open(WireReader& wire);
  QByteArray LoadPage(const Job& job, WireReader& wire);
  QByteArray Paint(const Job& job, WireReader& wire);
  QByteArray ReadContent(const Job& job, WireReader& wire);
  QByteArray ReadLinks(WireReader& wire);
  QByteArray ShowLayers(WireReader& wire);
  QByteArray BuildUpdate(WireReader& wire);
  QByteArray WriteWhole(uint32_t call);
  int HandPart(uint32_t call, const QByteArray& part);
  void Send(WireKind kind, uint32_t call, const QByteArray& body);
  std::shared_ptr<EnginePlan> Plan();

  PlanEngine& engine_;
  uint32_t* const tiles_;
  std::mutex sending_;
  std::mutex receiving_;
  std::mutex mutex_;
  std::condition_variable mayGoOn_;
  std::deque<Job> jobs_;
  std::map<uint32_t, std::shared_ptr<CancelFlag>> working_;
  std::map<uint32_t, std::shared_ptr<LoadedPage>> pages_;
  std::map<uint32_t, int> goOn_;
  std::shared_ptr<EnginePlan> plan_;
};

}  // namespace tamo
