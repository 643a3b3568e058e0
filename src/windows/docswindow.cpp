#include "windows/findbar.h"
#include "windows/formlayouts.h"
#include "windows/topictext.h"

// The help: topics on the left, the text on the right.

namespace tamo {

void LayOutDocs(Builder& b) {
  auto* row = NewRow(2 * kGrid);
  auto* left = new QVBoxLayout;
  left->addWidget(Section(QStringLiteral("Topics")));
  RowsView* topics = b.List("MenuList", QStringLiteral("Topics"), 34, 24);
  topics->contents = true;
  topics->setFixedWidth(topics->sizeHint().width());
  left->addWidget(topics, 1);
  row->addLayout(left);
  auto* right = new QVBoxLayout;
  right->setSpacing(kGrid);
  auto* line = NewRow();
  QLabel* caption = FixedCaption(QStringLiteral("File:"));
  QLineEdit* file = b.Field("Text1");
  caption->setBuddy(file);
  line->addWidget(caption);
  line->addWidget(file, 1);
  line->addWidget(b.PushButton("Command2"));
  line->addWidget(b.PushButton("Command1"));
  right->addLayout(line);
  QPlainTextEdit* text = b.LongField("DocText", QStringLiteral("Text of the topic"));
  new TopicText(text->document());
  text->setMinimumWidth(QFontMetrics(FixedFont()).horizontalAdvance(QLatin1Char('0')) * 84 +
                        4 * kGrid);
  text->setPlaceholderText(QStringLiteral("Choose a topic on the left."));
  right->addWidget(text, 1);
  std::vector<std::unique_ptr<FindPlace>> places;
  places.push_back(std::make_unique<FindInText>(*text));
  auto* find = new FindBar(std::move(places), b.GetDisplay(), QStringLiteral("the manual"));
  find->OpenByKey(b.Window());
  right->addWidget(find);
  row->addLayout(right, 1);
  b.Window().Body().addLayout(row, 1);
  b.Window().firstSize = {1120, 680};
}

}  // namespace tamo
