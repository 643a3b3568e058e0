#include <cstddef>
#include <cstdint>
#include <memory>
#include <thread>

#include "engine/mupdfcontexts.h"
#include "engine/mupdfengine.h"
#include "plans/filetail.h"
#include "plans/sheetnumber.h"
#include "support/memoryreader.h"

// Opens any bytes as a plan, paints its first page small, reads its content, adds a mark, and opens
// the result again: no input may crash it, and what it appends must be a plan with that mark.

namespace {

using namespace tamo;

constexpr size_t kLargest = 1 << 20;

std::shared_ptr<EnginePlan> PlanOf(const QByteArray& bytes, qint64 size) {
  MuPdfEngine engine;
  return engine.NewPlan(
      std::make_shared<PlanSource>(std::make_shared<test::MemoryReader>(bytes), size));
}

void Look(EnginePlan& plan) {
  CancelFlag cancel;
  // As the program does, only sooner: a page that takes too long is stopped.
  std::jthread watch([&cancel](const std::stop_token& done) {
    for (int i = 0; i < 100 && !done.stop_requested(); ++i) {
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    cancel.Cancel();
  });
  const auto page = plan.LoadPage(1, cancel);
  if (page == nullptr) return;
  PaintPart part;
  part.pixelsPerPoint = 0.1;
  part.width = 64;
  part.height = 64;
  uint32_t pixels[64 * 64];
  plan.Paint(*page, part, cancel, pixels);
  const PageContent content = plan.ReadContent(1, cancel);
  SheetTitleOf(TextLinesOf(plan.ReadTexts(1, cancel)), content.size);
  const PlanGuide guide = plan.ReadGuide();
  for (const PageLink& link : plan.ReadLinks(1)) {
    if (link.box.Empty()) __builtin_trap();
  }
  plan.ShowLayers(std::vector<bool>(guide.layers.size(), true));
  for (const PathPiece& path : content.paths) {
    Flattened(path);
    RectanglesOf(path);
  }
  for (const TextPiece& piece : content.texts) {
    if (piece.places.size() != static_cast<size_t>(piece.text.size())) __builtin_trap();
  }
}

void CheckUpdate(const QByteArray& bytes, size_t marks) {
  const auto again = PlanOf(bytes, bytes.size());
  if (again == nullptr) return;
  const PlanContents contents = again->Open(QString());
  if (ReadTail(test::MemoryReader(bytes)).torn) __builtin_trap();
  if (contents.error == 0 && contents.marks.size() < marks) __builtin_trap();
}

void Open(const QByteArray& bytes) {
  const FileTail tail = ReadTail(test::MemoryReader(bytes));
  const auto plan = PlanOf(bytes, tail.whole);
  if (plan == nullptr || plan->Open(QString()).error != 0) return;
  Look(*plan);
  MarkChanges changes;
  Mark mark;
  mark.points = {{10, 10}, {82, 10}};
  mark.name = MarkName(1, 0);
  mark.label = QStringLiteral("10.0 feet");
  changes.added.push_back(mark);
  const PlanUpdate update = plan->BuildUpdate(changes);
  if (update.error == 0) CheckUpdate(bytes.left(tail.whole) + update.bytes, 1);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size > kLargest) return 0;
  MuPdfContexts::SetMemoryLimit(qint64(256) << 20);
  Open(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
  return 0;
}
