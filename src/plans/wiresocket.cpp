#include "plans/wiresocket.h"

#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace tamo {
namespace {

constexpr uint32_t kChunk = uint32_t(1) << 20;

bool SendAll(int socket, const char* bytes, qsizetype count) {
  while (count > 0) {
    const ssize_t sent = ::send(socket, bytes, static_cast<size_t>(count), MSG_NOSIGNAL);
    if (sent < 0 && errno == EINTR) continue;
    if (sent <= 0) return false;
    bytes += sent;
    count -= sent;
  }
  return true;
}

bool ReceiveAll(int socket, char* bytes, qsizetype count) {
  while (count > 0) {
    const ssize_t got = ::recv(socket, bytes, static_cast<size_t>(count), 0);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) return false;
    bytes += got;
    count -= got;
  }
  return true;
}

void PutWord(QByteArray& bytes, uint32_t word) {
  for (int i = 0; i < 4; ++i) bytes.append(static_cast<char>(word >> (8 * i) & 255));
}

uint32_t WordAt(const char* bytes) {
  uint32_t word = 0;
  for (int i = 0; i < 4; ++i) word |= uint32_t(static_cast<unsigned char>(bytes[i])) << (8 * i);
  return word;
}

}  // namespace

QByteArray HeadOf(const WireMessage& message) {
  QByteArray head;
  head.append(static_cast<char>(message.kind));
  PutWord(head, message.call);
  PutWord(head, static_cast<uint32_t>(message.body.size()));
  return head;
}

bool TakeHead(const char* head, WireMessage& message, uint32_t& length) {
  const auto kind = static_cast<unsigned char>(head[0]);
  if (kind == 0 || kind > static_cast<unsigned>(WireKind::Last)) return false;
  message.kind = static_cast<WireKind>(kind);
  message.call = WordAt(head + 1);
  length = WordAt(head + 5);
  return length <= kLongestMessage;
}

bool SendMessage(int socket, const WireMessage& message) {
  if (message.body.size() > qsizetype(kLongestMessage)) return false;
  const QByteArray head = HeadOf(message);
  if (message.body.size() < 4096) {
    const QByteArray whole = head + message.body;
    return SendAll(socket, whole.constData(), whole.size());
  }
  return SendAll(socket, head.constData(), head.size()) &&
         SendAll(socket, message.body.constData(), message.body.size());
}

// The memory for a long message is taken as it comes, not as its head promises.
bool ReceiveMessage(int socket, WireMessage& message) {
  char head[kWireHead];
  uint32_t length = 0;
  if (!ReceiveAll(socket, head, kWireHead) || !TakeHead(head, message, length)) return false;
  message.body.clear();
  while (length > 0) {
    const uint32_t part = std::min(length, kChunk);
    const qsizetype before = message.body.size();
    message.body.resize(before + part);
    if (!ReceiveAll(socket, message.body.data() + before, part)) return false;
    length -= part;
  }
  return true;
}

}  // namespace tamo
