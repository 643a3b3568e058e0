#include "plans/plansession.h"

// What is still to be painted, and what has to be painted anew.

namespace tamo {

void PdfDraw::TellOfPainting() {
  const bool painting =
      session_ != nullptr && session_->painter != nullptr && !session_->painter->IsSharp();
  Raise(onPainting, painting);
}

void PdfDraw::ForgetPictures() {
  if (session_ != nullptr && session_->painter != nullptr) session_->painter->Forget();
  snap_.Lines().KeepOnly(nullptr, 0);
  snap_.Follow();
  TellOfPainting();
  ViewChanged();
}

}  // namespace tamo
