#include "plans/wiresocket.h"

#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

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

bool SendFile(int socket, int file) {
  char byte = 0;
  iovec part{&byte, 1};
  alignas(cmsghdr) char space[CMSG_SPACE(sizeof file)] = {};
  msghdr message{};
  message.msg_iov = &part;
  message.msg_iovlen = 1;
  message.msg_control = space;
  message.msg_controllen = sizeof space;
  cmsghdr* head = CMSG_FIRSTHDR(&message);
  head->cmsg_level = SOL_SOCKET;
  head->cmsg_type = SCM_RIGHTS;
  head->cmsg_len = CMSG_LEN(sizeof file);
  std::memcpy(CMSG_DATA(head), &file, sizeof file);
  ssize_t sent = -1;
  while ((sent = ::sendmsg(socket, &message, MSG_NOSIGNAL)) < 0 && errno == EINTR) continue;
  return sent == 1;
}

int ReceiveFile(int socket) {
  char byte = 0;
  iovec part{&byte, 1};
  int file = -1;
  alignas(cmsghdr) char space[CMSG_SPACE(sizeof file)] = {};
  msghdr message{};
  message.msg_iov = &part;
  message.msg_iovlen = 1;
  message.msg_control = space;
  message.msg_controllen = sizeof space;
  ssize_t got = -1;
  while ((got = ::recvmsg(socket, &message, MSG_CMSG_CLOEXEC)) < 0 && errno == EINTR) continue;
  const cmsghdr* head = got == 1 ? CMSG_FIRSTHDR(&message) : nullptr;
  if (head != nullptr && head->cmsg_level == SOL_SOCKET && head->cmsg_type == SCM_RIGHTS &&
      head->cmsg_len == CMSG_LEN(sizeof file)) {
    std::memcpy(&file, CMSG_DATA(head), sizeof file);
  }
  return file;
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
