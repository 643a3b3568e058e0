#pragma once

#include <QByteArray>

#include "plans/wireplan.h"

namespace tamo {

// One message: its kind, the number of the call that it belongs to, and what it says.
struct WireMessage {
  WireKind kind = WireKind::Cancel;
  uint32_t call = 0;
  QByteArray body;
};

// No honest message is longer, in bytes.
inline constexpr uint32_t kLongestMessage = uint32_t(192) << 20;

// The head of a message, as it stands before its body. False when no honest program sends it.
constexpr int kWireHead = 9;
QByteArray HeadOf(const WireMessage& message);
bool TakeHead(const char* head, WireMessage& message, uint32_t& length);

// Both block, and are false when the other side is gone or, reading, lies. One thread at a time
// each way.
bool SendMessage(int socket, const WireMessage& message);
bool ReceiveMessage(int socket, WireMessage& message);

// Hands an open file over, ahead of all messages. Receiving blocks; -1 when the other side is gone
// or handed none.
bool SendFile(int socket, int file);
int ReceiveFile(int socket);

// The file numbers that a worker finds when it begins.
inline constexpr int kWorkerSocket = 3;
inline constexpr int kWorkerTiles = 4;  // shared memory for pixels

// The tiles: slots of the same size, one for each call that paints.
inline constexpr int kTileSlots = 6;
inline constexpr int kSlotPixels = 1 << 21;

}  // namespace tamo
