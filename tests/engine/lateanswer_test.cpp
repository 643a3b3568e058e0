#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <future>
#include <memory>
#include <vector>

#include "plans/wiresocket.h"
#include "plans/workerlink.h"

// A page that nobody waits for any more, and that the worker has read all the same.

namespace tamo::test {
namespace {

QByteArray PageRead() {
  WireWriter wire;
  wire.Flag(true);
  Put(wire, PageSize());
  Put(wire, PageGaps());
  return wire.Take();
}

// A worker that pays no heed to being cancelled: it answers its first call when it hears that it is
// cancelled and `late` is over, every other one at once. What it was told to drop.
std::vector<uint32_t> Stubborn(int socket, std::shared_future<void> late) {
  std::vector<uint32_t> dropped;
  WireMessage message;
  while (ReceiveMessage(socket, message)) {
    if (message.kind == WireKind::Drop) dropped.push_back(message.call);
    if (message.kind == WireKind::Cancel) {
      late.wait();
      SendMessage(socket, {WireKind::Answer, message.call, PageRead()});
    }
    if (message.kind == WireKind::ReadLinks)
      SendMessage(socket, {WireKind::Answer, message.call, {}});
  }
  ::close(socket);
  return dropped;
}

TEST(LateAnswer, APageReadInVainIsNotKeptByTheWorker) {
  int ends[2] = {-1, -1};
  ASSERT_EQ(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends), 0);
  std::promise<void> left;
  auto worker =
      std::async(std::launch::async, Stubborn, ends[1], std::shared_future(left.get_future()));
  auto link = WorkerLink::To(WorkerProcess::At(ends[0]));
  CancelFlag cancel;
  cancel.Cancel();
  const auto page = link->Call(WireKind::LoadPage, {}, {20000, &cancel, -1, {}});
  EXPECT_TRUE(page.left);
  left.set_value();
  // Two calls: the first may go out before the late answer has come.
  for (int i = 0; i < 2; ++i) {
    EXPECT_TRUE(link->Call(WireKind::ReadLinks, {}, {20000, nullptr, -1, {}}).there);
  }
  link->Kill();
  EXPECT_EQ(worker.get(), std::vector<uint32_t>{page.call});
}

}  // namespace
}  // namespace tamo::test
