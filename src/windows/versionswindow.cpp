#include "windows/formlayouts.h"

// The versions of the open bid, or the deleted projects.

namespace tamo {
namespace {

QWidget* Versions(Builder& b) {
  QWidget* panel = b.Group("VersionsFrame");
  QVBoxLayout* column = ColumnIn(panel);
  FieldColumn fields(*column);
  fields.Add(FixedCaption(QStringLiteral("Keep This Version:")),
             b.Field("VersionName", 0, QStringLiteral("Name of the version to keep")),
             b.Prompt("NamePrompt"));
  column->addWidget(Section(QStringLiteral("Versions and days of this bid")));
  column->addWidget(b.List("VersionsList", QStringLiteral("Versions and days of this bid"), 60, 12),
                    1);
  QHBoxLayout* buttons = NewRow();
  for (const char* name : {"LookAtVersion", "CompareVersion", "BringBackVersion"})
    buttons->addWidget(b.PushButton(name));
  buttons->addStretch(1);
  column->addLayout(buttons);
  return panel;
}

QWidget* Deleted(Builder& b) {
  QWidget* panel = b.Group("DeletedFrame");
  QVBoxLayout* column = ColumnIn(panel);
  column->addWidget(Section(QStringLiteral("Projects deleted within the last thirty days")));
  column->addWidget(b.List("DeletedList", QStringLiteral("Deleted projects"), 60, 12), 1);
  QHBoxLayout* buttons = NewRow();
  buttons->addWidget(b.PushButton("BringBackProject"));
  buttons->addStretch(1);
  column->addLayout(buttons);
  return panel;
}

}  // namespace

void LayOutVersions(Builder& b) {
  QVBoxLayout& body = b.Window().Body();
  body.addWidget(Versions(b), 1);
  body.addWidget(Deleted(b), 1);
  body.addWidget(b.Text("StatusText"));
  b.Window().firstSize = {640, 460};
}

}  // namespace tamo
