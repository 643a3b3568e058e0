#include <unistd.h>

#include <random>

#include "plans/wiresocket.h"

// A worker that lies: answers calls with anything, says what nobody asked, or goes. What it does is
// drawn by its process number, so a row of them does many things.

using namespace tamo;

namespace {

QByteArray Anything(std::minstd_rand& random) {
  QByteArray bytes;
  for (unsigned i = random() % 200; i > 0; --i) bytes.append(static_cast<char>(random()));
  return bytes;
}

QByteArray OpenedWith(std::minstd_rand& random) {
  PlanContents contents;
  contents.sizes.resize(1 + random() % 3);
  WireWriter wire;
  wire.Flag(true);
  wire.Flag(true);
  Put(wire, contents);
  QByteArray bytes = wire.Take();
  // Whether it is shut in is not what it lies about: the tests run in one process.
  if (random() % 2 == 0) bytes[2 + random() % (bytes.size() - 2)] = static_cast<char>(random());
  return bytes;
}

// "Done", and a size.
QByteArray PageWith(std::minstd_rand& random) {
  WireWriter wire;
  wire.Flag(true);
  Put(wire, PageSize{double(random() % 1000), -5});
  Put(wire, PageGaps{true, true, true});
  return random() % 3 == 0 ? Anything(random) : wire.Take();
}

QByteArray AnswerTo(const WireMessage& message, std::minstd_rand& random) {
  if (random() % 4 == 0) return Anything(random);
  if (message.kind == WireKind::Open) return OpenedWith(random);
  if (message.kind == WireKind::LoadPage) return PageWith(random);
  return QByteArray(static_cast<qsizetype>(random() % 40), '\1');
}

}  // namespace

int main() {
  std::minstd_rand random(static_cast<unsigned>(getpid()));
  WireMessage message;
  if (ReceiveFile(kWorkerSocket) < 0) return 1;
  while (ReceiveMessage(kWorkerSocket, message)) {
    if (random() % 30 == 0) return 0;
    WireMessage said{WireKind::Answer, message.call, AnswerTo(message, random)};
    if (random() % 8 == 0) said.kind = static_cast<WireKind>(random() % 18);
    if (random() % 8 == 0) said.call += static_cast<uint32_t>(random() % 3);
    SendMessage(kWorkerSocket, said);
    if (said.call != message.call || said.kind != WireKind::Answer) {
      SendMessage(kWorkerSocket, {WireKind::Answer, message.call, Anything(random)});
    }
  }
  return 0;
}
