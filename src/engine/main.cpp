#include <poll.h>
#include <sys/mman.h>
#include <unistd.h>

#include <latch>
#include <thread>

#include "engine/engineserver.h"
#include "engine/handedfile.h"
#include "engine/mupdfengine.h"
#include "engine/sandbox.h"
#include "engine/warmup.h"

// The worker: reads one plan for the program that started it, and ends with it. It may begin before
// there is a plan. Everything it may touch it was given open: the socket to the program, the memory
// for tiles, the plan.

namespace {

constexpr int kThreads = 8;  // the viewer has at most six calls in work
constexpr size_t kTileBytes =
    sizeof(uint32_t) * size_t(tamo::kTileSlots) * size_t(tamo::kSlotPixels);

bool PlanIsThere() {
  pollfd socket{tamo::kWorkerSocket, POLLIN, 0};
  return ::poll(&socket, 1, 0) != 0;
}

void Bind(tamo::EngineServer& server) {
  const auto plan = std::make_shared<int>(-1);
  server.send = [](const tamo::WireMessage& message) {
    return tamo::SendMessage(tamo::kWorkerSocket, message);
  };
  server.receive = [plan](tamo::WireMessage& message) {
    if (*plan < 0) *plan = tamo::ReceiveFile(tamo::kWorkerSocket);
    return *plan >= 0 && tamo::ReceiveMessage(tamo::kWorkerSocket, message);
  };
  server.file = [plan](qint64 size) { return std::make_shared<tamo::HandedFile>(*plan, size); };
}

}  // namespace

int main() {
  tamo::WorkerGuard guard;
  tamo::ShutIn(guard);
  void* memory =
      ::mmap(nullptr, kTileBytes, PROT_READ | PROT_WRITE, MAP_SHARED, tamo::kWorkerTiles, 0);
  if (memory == MAP_FAILED) _exit(1);
  auto* tiles = static_cast<uint32_t*>(memory);
  tamo::MuPdfEngine engine;
  tamo::EngineServer server(engine, tiles);
  Bind(server);
  std::latch begun(kThreads - 1);
  std::latch ready(1);
  for (int i = 1; i < kThreads; ++i) {
    std::thread([&server, &begun, &ready] {
      begun.count_down();
      ready.wait();
      server.Work();
      _exit(0);
    }).detach();
  }
  begun.wait();
  const bool waits = !PlanIsThere();
  tamo::FilterCalls(guard);
  server.guard = guard;
  if (waits) tamo::WarmUp(engine, tiles);
  if (waits) engine.GetReady();
  ready.count_down();
  server.Work();
  _exit(0);  // the program is gone, and so are the threads
}
