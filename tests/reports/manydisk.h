#pragma once

#include <QHash>
#include <atomic>
#include <mutex>
#include <thread>

#include "randomproject.h"

namespace tamo::test {

// A project in memory: many rooms of 20 lines, which name some systems in turn. It counts how often
// each system is read, and how often by another thread than the one that made it.
class ManyDisk : public MemoryDisk {
 public:
  ManyDisk(int rooms, int systems) {
    QByteArray list;
    for (int room = 0; room < rooms; ++room) {
      const QByteArray name = "Room " + QByteArray::number(room);
      list += name + "\r\nTrue\r\n";
      QByteArray lines = "9\r\n";
      for (int line = 0; line < 20; ++line) {
        lines += Name((room * 20 + line * 7) % systems).leftJustified(32) +
                 QByteArray::number(line + 1).rightJustified(14) + " SF\r\n";
      }
      contents.insert(
          QStringLiteral("/p/Rooms/") + QString::fromUtf8(name) + QStringLiteral(".rfs"), lines);
    }
    contents.insert(QStringLiteral("/p/Rooms/Rooms.tamo"), list);
    for (int system = 0; system < systems; ++system)
      contents.insert(PathOf(system), Text(system, 1 + system % 9));
  }
  static QByteArray Name(int system) { return "System " + QByteArray::number(system); }
  static QString PathOf(int system) {
    return QStringLiteral("/p/Systems/") + QString::fromUtf8(Name(system)) + QStringLiteral(".sys");
  }
  static QByteArray Text(int system, int price) {
    return Name(system) + "\r\nSF\r\n0.00\r\n\r\n\x01\r\n\r\n\r\nBoard\r\nEA\r\n" +
           QByteArray::number(price) +
           ".50\r\n32\r\nupo\r\n45\r\nupm\r\n5\r\n41.50\r\n\r\n\r\n\r\n";
  }

  int Read(const QString& path, QByteArray& bytes) override {
    const std::lock_guard lock(mutex_);
    if (path.endsWith(QStringLiteral(".sys"))) {
      ++reads[path];
      if (std::this_thread::get_id() != asking_) ++elsewhere;
    }
    ++all;
    const int error = MemoryDisk::Read(path, bytes);
    Changed(path, bytes);
    return error;
  }

  void Put(const QString& path, const QByteArray& text) {
    const std::lock_guard lock(mutex_);
    contents[path] = text;
  }

  QHash<QString, int> reads;
  std::atomic<int> elsewhere = 0;
  std::atomic<int> all = 0;

 protected:
  virtual void Changed(const QString&, QByteArray&) {}

 private:
  const std::thread::id asking_ = std::this_thread::get_id();
  std::mutex mutex_;
};

}  // namespace tamo::test
