#include <array>

#include "engine/engineserver.h"
#include "plans/wireguide.h"
#include "support/fakeplanengine.h"
#include "support/memoryreader.h"

// A worker that is fed by a lying program. Each message is taken from the bytes: three of them make
// its head, the rest of what belongs to it its body, which may begin as an honest one does.

namespace {

using namespace tamo;

constexpr size_t kMostMessages = 40;

QByteArray Honest(WireKind kind) {
  WireWriter wire;
  switch (kind) {
    case WireKind::Open:
      wire.Number(6);
      wire.Text({});
      break;
    case WireKind::LoadPage:
    case WireKind::ReadContent:
    case WireKind::ReadTexts:
    case WireKind::ReadLinks:
    case WireKind::GoOn:
      wire.Number(1);
      break;
    case WireKind::Paint:
      wire.Number(2);
      Put(wire, PaintPart{1, 90, -5, 7, 30, 20, true});
      wire.Number(5);
      break;
    case WireKind::BuildUpdate: {
      MarkChanges changes;
      Mark circle;
      circle.kind = Mark::Kind::Circle;
      circle.points = {{7, 8}};
      changes.added = {circle};
      changes.removed = {QStringLiteral("tamo-1")};
      Put(wire, changes);
      break;
    }
    case WireKind::ShowLayers:
      Put(wire, std::vector<bool>{true, false});
      break;
    default:
      break;
  }
  return wire.Take();
}

// An honest body, with as many bytes changed as `lie` brings, or `lie` itself.
QByteArray BodyOf(WireKind kind, bool honest, const QByteArray& lie) {
  if (!honest) return lie;
  QByteArray body = Honest(kind);
  for (qsizetype i = 0; i + 1 < lie.size() && !body.isEmpty(); i += 2) {
    body[static_cast<unsigned char>(lie[i]) % body.size()] = lie[i + 1];
  }
  return body;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static std::vector<uint32_t> tiles(size_t(kTileSlots) * size_t(kSlotPixels));
  test::FakePlanEngine engine;
  EngineServer server(engine, tiles.data());
  server.file = [](qint64) { return std::make_shared<test::MemoryReader>(QByteArray("a plan")); };
  server.send = [&server](const WireMessage& message) {
    if (message.kind == WireKind::Part)
      server.Take({WireKind::GoOn, message.call, QByteArray(8, '\0')});
    return true;
  };
  server.Take({WireKind::Open, 1, Honest(WireKind::Open)});
  size_t at = 0;
  for (size_t i = 0; i < kMostMessages && at + 3 <= size; ++i) {
    const auto kind = static_cast<WireKind>(1 + data[at] % 16);
    const bool honest = (data[at] & 128) != 0;
    const size_t length = std::min(size_t(data[at + 2]), size - at - 3);
    const QByteArray lie(reinterpret_cast<const char*>(data + at + 3), qsizetype(length));
    const WireMessage message{kind, data[at + 1] % 8U, BodyOf(kind, honest, lie)};
    at += 3 + length;
    if (!server.Take(message)) return 0;
    while (server.WorkOnce()) continue;
  }
  return 0;
}
