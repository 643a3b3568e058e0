#include "windows/groupstrip.h"

#include <QBoxLayout>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>

#include "windows/look.h"
#include "windows/rowsview.h"

namespace tamo {

QWidget* GroupStrip(Builder& b) {
  QFrame* frame = b.Panel("GroupFrame");
  auto* line = new QHBoxLayout(frame);
  line->setContentsMargins(kGrid, kGrid / 2, kGrid, kGrid / 2);
  line->setSpacing(kGrid);
  auto* name = new QVBoxLayout;
  name->setSpacing(kGrid / 2);
  QLabel* caption = FixedPrompt(QStringLiteral("Count group"));
  QLineEdit* field = b.Field("GroupName", 24);
  caption->setBuddy(field);
  name->addWidget(caption);
  name->addWidget(field);
  name->addWidget(
      FixedPrompt(QStringLiteral("A new name begins a group. Enter counts, Escape closes.")));
  name->addStretch(1);
  line->addLayout(name);
  line->addWidget(b.List("GroupList", QStringLiteral("Count groups"), 40, 4), 1);
  frame->setMaximumHeight(12 * kGrid);
  return frame;
}

}  // namespace tamo
