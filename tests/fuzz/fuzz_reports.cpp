#include <QByteArray>
#include <cstdint>
#include <cstdlib>

#include "common/disk.h"
#include "common/failure.h"
#include "common/files.h"
#include "reports/bill.h"
#include "reports/breakdown.h"
#include "reports/copies.h"
#include "reports/quantities.h"
#include "reports/recap.h"

// Every report on a project whose files are wild bytes: a room, an area, a system, items and an
// adjustment, cut out of the input at each byte 255. It must end with lines or with a
// RunTimeFailure.

namespace {

using namespace tamo;

class WildDisk : public RealDisk {
 public:
  WildDisk(const uint8_t* data, size_t size) {
    parts_ =
        QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)).split('\xff');
  }
  int ReadStamped(const QString& path, QByteArray& bytes, FileStamp& stamp) override {
    return Disk::ReadStamped(path, bytes, stamp);
  }
  int Read(const QString& path, QByteArray& bytes) override {
    if (path.endsWith(QLatin1String("Rooms.tamo"))) {
      bytes = "A\r\nTrue\r\n";
    } else if (path.endsWith(QLatin1String("Areas.tamo"))) {
      bytes = "A\r\nTrue\r\nB\r\n";
    } else if (path.endsWith(QLatin1String(".rfs"))) {
      bytes = parts_.value(0);
    } else if (path.endsWith(QLatin1String(".ato"))) {
      bytes = parts_.value(1);
    } else if (path.endsWith(QLatin1String(".sys"))) {
      bytes = parts_.value(2 + path.size() % 3);
    } else {
      bytes = parts_.value(path.endsWith(QLatin1String("oItems.tamo")) ? 5 : 6);
    }
    return kNoError;
  }
  bool Exists(const QString&) override { return true; }
  QStringList Names(const QString&) override { return {}; }

 private:
  QList<QByteArray> parts_;
};

Report Make(int report, const ReportSource& source, const Markups& markups) {
  QString adjustment;
  switch (report) {
    case 0:
      return MinimalRecapSheet(source, markups, false, adjustment);
    case 1:
      return MinimalRecapSheet(source, markups, true, adjustment);
    case 2:
      return DetailedRecapSheet(source, markups);
    case 3:
      return Quantities(source);
    case 4:
      return BillofMaterial(source);
    case 5:
      return BreakDown(MakeBreak(source, markups, adjustment));
    case 6:
      return FieldCopy(source);
    default:
      return OfficeCopy(source, markups);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  WildDisk disk(data, size);
  Files files(disk);
  Markups markups;
  markups.LOH = markups.MOH = QStringLiteral(".10");
  for (const bool whole : {false, true}) {
    const ReportSource source{files, {QStringLiteral("/p/"), QStringLiteral("/")}, {}, whole};
    for (int report = 0; report < 8; ++report) {
      try {
        if (Make(report, source, markups).lines.isEmpty()) std::abort();
      } catch (const RunTimeFailure& failure) {
        if (failure.text.isEmpty()) std::abort();
      }
    }
  }
  return 0;
}
