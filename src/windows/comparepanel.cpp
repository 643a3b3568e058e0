#include "windows/comparepanel.h"

namespace tamo {
namespace {

constexpr int kWidth = 38 * kGrid;

// The colours of the sheet, each word in its own, on white as on paper: there they are read in the
// dark look, too.
QLabel* Legend() {
  QString words;
  for (const auto& [colour, word] :
       {std::pair("#c80000", "red: gone"), std::pair("#007a1e", "green: new"),
        std::pair("#606060", "grey: stayed")})
    words +=
        QStringLiteral("<span style='background-color:#ffffff;color:%1'>&nbsp;%2&nbsp;</span> ")
            .arg(QLatin1String(colour), QLatin1String(word));
  auto* legend = new QLabel(words);
  legend->setObjectName(QStringLiteral("CompareLegend"));
  legend->setFont(PromptFont());
  return legend;
}

}  // namespace

QWidget* ComparePanel(Builder& b) {
  QFrame* frame = b.Panel("ComparePanel");
  frame->setFixedWidth(kWidth);
  auto* column = new QVBoxLayout(frame);
  column->setSpacing(kGrid);
  column->addWidget(Section(QStringLiteral("Two revisions")));
  column->addWidget(Legend());
  QLabel* words = b.Text("CompareWords");
  words->setWordWrap(true);
  words->setTextFormat(Qt::PlainText);
  column->addWidget(words);
  QLineEdit* password =
      b.Field("ComparePassword", 0, QStringLiteral("Password of the plan to compare with"));
  password->setEchoMode(QLineEdit::Password);
  password->setPlaceholderText(QStringLiteral("Its password, and Enter"));
  column->addWidget(password);
  column->addWidget(b.List("ChangedPlaces", QStringLiteral("Changed places"), 0, 3), 1);
  QLabel* place = b.Text("PlaceWords");
  place->setWordWrap(true);
  place->setTextFormat(Qt::PlainText);
  column->addWidget(place);
  column->addWidget(FixedPrompt(
      QStringLiteral("N, Shift+N: next place, the one before. 2: by two points.\nO: old, new or "
                     "both. X: colours change sides.\nCtrl+Page Up, Ctrl+Page "
                     "Down: another sheet.\nEscape ends.")));
  return frame;
}

}  // namespace tamo
