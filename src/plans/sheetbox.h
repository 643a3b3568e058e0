#pragma once

#include <functional>
#include <optional>

#include "plans/pagecontent.h"

namespace tamo {

// A box that was drawn on a sheet. It is no mark.
struct DrawnBox {
  int page = 1;
  PageBox place;
};

// What a box is drawn around.
enum class BoxUse { Table, Symbol };

// The box that an estimator draws around a table or a symbol of the plan: the drag after it was
// asked for, or two corners set with Space, whatever tool is in hand. One around a table stays
// until the next box, another plan or Escape; one around a symbol is handed on and is gone. Places
// in points; those that are none (see IsPlace) draw nothing.
class SheetBox {
 public:
  void Ask(BoxUse use);  // the next drag draws it
  void Leave();          // no drag does any more; a box that is drawn stays
  bool Asked() const { return asked_; }

  void Begin(PagePoint corner);
  bool Growing() const { return growing_; }  // it has one corner
  void Stretch(int page, PagePoint to);
  void End(int page, PagePoint to);
  void Draw(int page, PagePoint from, PagePoint to);  // the whole of it
  void Drop();                                        // also one that is drawn

  // Until the next call.
  const std::optional<DrawnBox>& Drawn() const { return drawn_; }

  std::function<void()> onChanged;                    // it is to be painted again
  std::function<void(const DrawnBox& box)> onSymbol;  // one was drawn around a symbol

 private:
  bool asked_ = false;
  BoxUse use_ = BoxUse::Table;
  bool growing_ = false;
  PagePoint from_;
  std::optional<DrawnBox> drawn_;
};

}  // namespace tamo
