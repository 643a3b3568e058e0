#include <cstddef>
#include <cstdint>
#include <memory>
#include <thread>

#include "plans/filetail.h"
#include "plans/pagepainter.h"
#include "plans/planfile.h"

// Opens any bytes as a plan, paints its first page small, adds a mark, and opens the result again:
// no input may crash it, and what it appends must be a plan with that mark.

namespace {

using namespace tamo;

constexpr size_t kLargest = 1 << 20;

void Paint(const std::shared_ptr<MuWorld>& world, fz_context* context,
           const std::shared_ptr<ReaderSlot>& slot) {
  PaintStop stop;
  // As the program does, only sooner: a page that takes too long is stopped.
  std::jthread watch([&stop](const std::stop_token& done) {
    for (int i = 0; i < 100 && !done.stop_requested(); ++i) {
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    stop.Stop();
  });
  PageSource source(context, world, slot, QByteArray());
  const auto list = source.Read(1, stop);
  if (list == nullptr) return;
  PaintPart part;
  part.pixelsPerPoint = 0.1;
  part.width = 64;
  part.height = 64;
  Picture picture;
  PaintPage(context, *list, part, stop, picture);
}

void CheckAddition(const std::shared_ptr<MuWorld>& world, fz_context* context,
                   const QByteArray& bytes, size_t marks) {
  const auto reader = std::make_shared<MemoryReader>(bytes);
  PlanFile again(context, world, std::make_shared<ReaderSlot>(reader, bytes.size()));
  const PlanContents contents = again.Open(QString());
  if (ReadTail(*reader).torn) __builtin_trap();
  if (contents.error == 0 && contents.marks.size() < marks) __builtin_trap();
}

void Open(const std::shared_ptr<MuWorld>& world, fz_context* context, const QByteArray& bytes) {
  const auto reader = std::make_shared<MemoryReader>(bytes);
  const FileTail tail = ReadTail(*reader);
  const auto slot = std::make_shared<ReaderSlot>(reader, tail.whole);
  PlanFile plan(context, world, slot);
  const PlanContents contents = plan.Open(QString());
  if (contents.error != 0) return;
  Paint(world, context, slot);
  MarkChanges changes;
  Mark mark;
  mark.points = {{10, 10}, {82, 10}};
  mark.name = MarkName(1, 0);
  mark.label = QStringLiteral("10.0 feet");
  changes.added.push_back(mark);
  QByteArray addition;
  QString problem;
  if (plan.Addition(changes, addition, problem) != 0) return;
  CheckAddition(world, context, bytes.left(tail.whole) + addition, 1);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size > kLargest) return 0;
  MuWorld::SetMemoryLimit(qint64(256) << 20);
  const auto world = MuWorld::Make();
  if (world == nullptr) return 0;
  fz_context* context = world->NewContext();
  if (context != nullptr) {
    Open(world, context,
         QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
  }
  MuWorld::DropContext(context);
  return 0;
}
