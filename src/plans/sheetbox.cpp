#include "plans/sheetbox.h"

#include <algorithm>

namespace tamo {

void SheetBox::Ask(BoxUse use) {
  asked_ = true;
  use_ = use;
  growing_ = false;
  if (onChanged) onChanged();
}

void SheetBox::Leave() {
  asked_ = false;
  growing_ = false;
  if (onChanged) onChanged();
}

void SheetBox::Begin(PagePoint corner) {
  growing_ = true;
  from_ = corner;
}

void SheetBox::Stretch(int page, PagePoint to) {
  drawn_ = DrawnBox{page,
                    {std::min(from_.x, to.x), std::min(from_.y, to.y), std::max(from_.x, to.x),
                     std::max(from_.y, to.y)}};
  if (onChanged) onChanged();
}

void SheetBox::End(int page, PagePoint to) {
  const bool symbol = asked_ && use_ == BoxUse::Symbol;
  asked_ = false;
  growing_ = false;
  Stretch(page, to);
  if (!symbol) return;
  const DrawnBox box = *drawn_;
  Drop();
  if (onSymbol) onSymbol(box);
}

void SheetBox::Draw(int page, PagePoint from, PagePoint to) {
  if (!IsPlace(from) || !IsPlace(to)) return;
  Begin(from);
  End(page, to);
}

void SheetBox::Drop() {
  asked_ = false;
  growing_ = false;
  drawn_.reset();
}

}  // namespace tamo
