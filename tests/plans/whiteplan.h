#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "plans/planengine.h"

namespace tamo::test {

// A plan of white sheets. How its pages come to be read is left to the test.
class WhitePlan : public EnginePlan {
 public:
  bool Paint(const LoadedPage& /*page*/, const PaintPart& part, CancelFlag& /*cancel*/,
             uint32_t* pixels) override {
    std::fill_n(pixels, static_cast<size_t>(part.width) * static_cast<size_t>(part.height),
                0xffffffffU);
    return true;
  }
  PlanContents Open(const QString& /*password*/) override { return {}; }
  PageContent ReadContent(int /*page*/, CancelFlag& /*cancel*/) override { return {}; }
  PlanUpdate BuildUpdate(const MarkChanges& /*changes*/) override { return {}; }
  void ForgetUpdate() override {}
  int WriteWhole(const Sink& /*sink*/, QString& /*problem*/) override { return 0; }
  void Abandon() override {}
};

struct WhitePage : LoadedPage {
  PageSize Size() const override { return {}; }
};

}  // namespace tamo::test
