#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "engine/engineserver.h"
#include "support/fakeplanengine.h"
#include "support/memoryreader.h"

// Both ends of the talk between the program and the worker that reads plans. The first byte picks:
// the answers of a worker as the program reads them, or a row of messages as a worker takes them.

namespace {

using namespace tamo;

template <typename Said>
void Hear(const QByteArray& bytes) {
  WireReader wire(bytes);
  Said said;
  Take(wire, said);
  if (!wire.AtEnd()) return;
  // What was taken for good can be said, and heard, again.
  WireWriter again;
  Put(again, said);
  const QByteArray repeated = again.Take();
  WireReader second(repeated);
  Said heard;
  Take(second, heard);
  if (!second.AtEnd()) __builtin_trap();
}

void Serve(const QByteArray& bytes) {
  static std::vector<uint32_t> tiles(size_t(kTileSlots) * size_t(kSlotPixels));
  test::FakePlanEngine engine;
  EngineServer server(engine, tiles.data());
  server.file = [](qint64) { return std::make_shared<test::MemoryReader>(QByteArray("a plan")); };
  server.send = [&server](const WireMessage& message) {
    if (message.kind == WireKind::Part)
      server.Take({WireKind::GoOn, message.call, QByteArray(8, '\0')});
    return true;
  };
  qsizetype at = 0;
  while (at + kWireHead <= bytes.size()) {
    WireMessage message;
    uint32_t length = 0;
    if (!TakeHead(bytes.constData() + at, message, length)) return;
    at += kWireHead;
    if (qsizetype(length) > bytes.size() - at) length = static_cast<uint32_t>(bytes.size() - at);
    message.body = bytes.mid(at, length);
    at += length;
    if (!server.Take(message)) return;
    while (server.WorkOnce()) continue;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  const QByteArray bytes(reinterpret_cast<const char*>(data + 1), static_cast<qsizetype>(size - 1));
  switch (data[0] % 5) {
    case 0:
      Hear<PlanContents>(bytes);
      break;
    case 1:
      Hear<PageContent>(bytes);
      break;
    case 2:
      Hear<PlanUpdate>(bytes);
      break;
    case 3:
      Hear<MarkChanges>(bytes);
      break;
    default:
      Serve(bytes);
  }
  return 0;
}
