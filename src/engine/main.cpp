#include <sys/mman.h>
#include <unistd.h>

#include <thread>

#include "engine/engineserver.h"
#include "engine/handedfile.h"
#include "engine/mupdfengine.h"
#include "engine/sandbox.h"

// The worker: reads one plan for the program that started it, and ends with it. Everything it may
// touch it was given open: the socket to the program, the plan, the memory for tiles.

namespace {

constexpr int kThreads = 6;  // structure, pages, contents, and three that paint
constexpr size_t kTileBytes =
    sizeof(uint32_t) * size_t(tamo::kTileSlots) * size_t(tamo::kSlotPixels);

void Serve(tamo::EngineServer& server) {
  for (int i = 0; i < kThreads; ++i) std::thread([&server] { server.Work(); }).detach();
  tamo::FilterCalls(server.guard);
  tamo::WireMessage message;
  while (tamo::ReceiveMessage(tamo::kWorkerSocket, message) && server.Take(message)) continue;
}

}  // namespace

int main() {
  tamo::WorkerGuard guard;
  tamo::ShutIn(guard);
  void* tiles =
      ::mmap(nullptr, kTileBytes, PROT_READ | PROT_WRITE, MAP_SHARED, tamo::kWorkerTiles, 0);
  if (tiles == MAP_FAILED) _exit(1);
  tamo::MuPdfEngine engine;
  tamo::EngineServer server(engine, static_cast<uint32_t*>(tiles));
  server.guard = guard;
  server.send = [](const tamo::WireMessage& message) {
    return tamo::SendMessage(tamo::kWorkerSocket, message);
  };
  server.file = [](qint64 size) {
    return std::make_shared<tamo::HandedFile>(tamo::kWorkerFile, size);
  };
  Serve(server);
  _exit(0);  // the program is gone, and so are the threads
}
