#pragma once

#include <QSyntaxHighlighter>

namespace tamo {

// Sets a topic of the manual for reading: its title large, heads of sections in semibold, examples
// and tables in a face of equal widths, so that their columns stand. The text stays as it is.
class TopicText : public QSyntaxHighlighter {
 public:
  explicit TopicText(QTextDocument* document) : QSyntaxHighlighter(document) {}

 protected:
  void highlightBlock(const QString& line) override;
};

}  // namespace tamo
