#include "engine/warmup.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <utility>
#include <vector>

#include "plans/wiresocket.h"

namespace tamo {
namespace {

constexpr size_t kMemory = size_t(16) << 20;  // bytes
constexpr int kWidth = 1280;                  // of the coarse picture of a sheet
constexpr int kHeight = 480;

class OwnSheet : public FileReader {
 public:
  explicit OwnSheet(QByteArray bytes) : bytes_(std::move(bytes)) {}
  qint64 Size() const override { return bytes_.size(); }
  int ReadAt(qint64 offset, char* into, qint64 count, qint64& got) const override {
    got = std::clamp<qint64>(bytes_.size() - offset, 0, count);
    std::memcpy(into, bytes_.constData() + offset, static_cast<size_t>(got));
    return 0;
  }

 private:
  QByteArray bytes_;
};

// Lines, an area, a curve, a dashed line, letters.
QByteArray Sheet() {
  const QByteArray drawn =
      "q 1 w 0 0 m 900 700 l S 2 J [4 2] 0 d 0 700 m 900 0 l S 0.5 g 100 100 50 50 re f Q\n"
      "q 0 0 800 600 re W n 0 0 m 100 300 300 500 800 600 c S Q BT /F 12 Tf 50 50 Td (A1 b) Tj ET";
  const QByteArray objects[] = {
      "<</Type/Catalog/Pages 2 0 R>>", "<</Type/Pages/Kids[3 0 R]/Count 1>>",
      "<</Type/Page/Parent 2 0 R/MediaBox[0 0 900 700]/Contents 4 0 R"
      "/Resources<</Font<</F<</Type/Font/Subtype/Type1/BaseFont/Helvetica>>>>>>>>",
      "<</Length " + QByteArray::number(drawn.size()) + ">>\nstream\n" + drawn + "\nendstream"};
  QByteArray bytes = "%PDF-1.4\n";
  QByteArray table = "xref\n0 5\n0000000000 65535 f \n";
  int number = 0;
  for (const QByteArray& object : objects) {
    table += QByteArray::number(bytes.size()).rightJustified(10, '0') + " 00000 n \n";
    bytes += QByteArray::number(++number) + " 0 obj\n" + object + "\nendobj\n";
  }
  const QByteArray start = QByteArray::number(bytes.size());
  return bytes + table + "trailer\n<</Size 5/Root 1 0 R>>\nstartxref\n" + start + "\n%%EOF\n";
}

}  // namespace

void WarmUp(PlanEngine& engine, uint32_t* tiles) {
  const auto sheet = std::make_shared<OwnSheet>(Sheet());
  const auto plan = engine.NewPlan(std::make_shared<PlanSource>(sheet, sheet->Size()));
  if (plan == nullptr || plan->Open({}).error != 0) return;
  CancelFlag cancel;
  const auto page = plan->LoadPage(1, cancel);
  if (page == nullptr) return;
  for (int half = 0; half < 2; ++half) {
    const PaintPart part = {kWidth / 900.0, 0, 0, half * kHeight, kWidth, kHeight, true};
    plan->Paint(*page, part, cancel, tiles + size_t(half) * size_t(kSlotPixels));
  }
  const std::unique_ptr<char[]> memory(new char[kMemory]);
  for (size_t i = 0; i < kMemory; i += 4096) memory[i] = 1;
}

}  // namespace tamo
