#include "schedule/readaside.h"

#include <chrono>
#include <future>
#include <thread>

#include "schedule/finishcodes.h"
#include "schedule/readingproblem.h"
#include "schedule/sheetpictures.h"

namespace tamo {
namespace {

constexpr auto kLook = std::chrono::milliseconds(2);

SheetRead Refused(const QString& why) {
  return {why, {}, {}, false};
}

SheetRead Read(const SheetToRead& sheet, CancelFlag& stop) {
  PageContent page = sheet.plan->ReadContent(sheet.page, stop);
  if (stop.Cancelled()) return Refused(QStringLiteral("The reading of the sheet was stopped."));
  if (page.error != 0) {
    return Refused(QStringLiteral("The sheet can't be read: %1.").arg(page.problem));
  }
  if (sheet.pictures != nullptr) {
    const QString problem = sheet.pictures->ReadInto(page, sheet, stop);
    if (!problem.isEmpty()) return Refused(problem);
  }
  ScheduleReading reading =
      ReadSchedule(page, sheet.box, sheet.before.has_value() ? &*sheet.before : nullptr);
  SheetRead read = {reading.problem, std::move(reading.parts), {}, false};
  if (sheet.pictures != nullptr) {
    MarkAllUnsure(read.parts);
  } else if (!read.problem.isEmpty()) {
    read.picture = OnlyAPicture(page, sheet.box);
  }
  if (sheet.withLegend && read.problem.isEmpty() && !stop.Cancelled()) {
    read.legend = LegendOf(FindTables(page));
    read.legend.merge(LegendBeside(page, CodesOf(FinishRowsOf(read.parts)), read.parts));
  }
  return read;
}

}  // namespace

SheetRead ReadAside(SheetToRead sheet, const std::function<bool(int done, int all)>& progress) {
  if (sheet.plan == nullptr) {
    return Refused(QStringLiteral("The sheet can't be read: the plan is still being opened."));
  }
  CancelFlag stop;
  std::future<SheetRead> reading =
      std::async(std::launch::async, [&sheet, &stop] { return Read(sheet, stop); });
  while (progress && reading.wait_for(kLook) != std::future_status::ready) {
    if (!stop.Cancelled() && !progress(0, 0)) stop.Cancel();
  }
  SheetRead read = reading.get();
  return stop.Cancelled() ? Refused(QStringLiteral("The reading of the sheet was stopped.")) : read;
}

}  // namespace tamo
