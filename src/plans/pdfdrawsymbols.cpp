#include <QAbstractEventDispatcher>

#include "plans/plansession.h"

// A symbol is looked for on a thread of its own; this brings the news of it to that of the forms.

namespace tamo {

void PdfDraw::SymbolBoxed(const DrawnBox& box) {
  same_.TakeBox(box.place);
  TellOfSearch();
}

// While the search goes on it says every moment how far it is.
void PdfDraw::TellOfSearch() {
  constexpr int kMoment = 200;
  same_.GoOn();
  const bool waits = QAbstractEventDispatcher::instance() != nullptr;  // not in a plain thread
  if (!same_.Busy() || searchTold_ || !waits) return;
  searchTold_ = true;
  FormsThread::After(forms_, kMoment, [](PdfDraw& draw) {
    draw.searchTold_ = false;
    draw.TellOfSearch();
  });
}

}  // namespace tamo
