#include "windows/formlayouts.h"

// The project's own items and amounts.

namespace tamo {

void LayOutBottomLine(Builder& b) {
  QWidget* frame = b.Group("oiFrame");
  auto* column = ColumnIn(frame);
  FieldColumn fields(*column);
  fields.captionWidth = 10 * kGrid;
  fields.Add(b.Caption("ItemLabel"), b.Field("Item", 26), b.Prompt("ItemPrompt"));
  fields.Add(b.Caption("PriceLabel"), b.Field("iPrice", 14));
  column->addWidget(Section(QStringLiteral("Items of this project")));
  RowsView* lines = b.List("oiList", QStringLiteral("Items of this project"), 34, 10);
  lines->UseFixedColumns();
  column->addWidget(lines, 1);
  column->addWidget(FixedPrompt(
      QStringLiteral("A click takes an item back into the fields; the right button deletes it.")));
  b.DropList("ItemList", "Item");
  b.PopList("EditList", QStringLiteral("What to do with the item"), 14);
  b.Window().Body().addWidget(frame, 1);
  b.Window().firstSize = {480, 480};
}

}  // namespace tamo
