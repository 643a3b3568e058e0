#include "support/doubles.h"

#include "common/textlines.h"

namespace tamo::test {

void ScriptedMessages::Tell(const QString& text) {
  texts += text;
  shown += WholeLines(text);
  shown += QStringLiteral("--");
}

bool ScriptedMessages::Ask(const QString& text) {
  bool yes = false;
  if (answers.empty()) {
    ++unanswered;
  } else {
    yes = answers.front();
    answers.pop_front();
  }
  texts += text;
  shown += WholeLines(text);
  shown += yes ? QStringLiteral("-- Yes") : QStringLiteral("-- No");
  return yes;
}

QStringList ScriptedMessages::TakeShown() {
  QStringList taken;
  taken.swap(shown);
  return taken;
}

void RecordingPrinter::SetFont(const QString& name, int points) {
  font_ = QStringLiteral("-- font %1, size %2").arg(name).arg(points);
}

void RecordingPrinter::PrintLine(const QString& line) {
  if (!inJob_) {
    printed += QStringLiteral("-- job");
    inJob_ = true;
    fontInForce_.clear();
  }
  if (font_ != fontInForce_) {
    printed += font_;
    fontInForce_ = font_;
  }
  printed += line;
}

void RecordingPrinter::EndPage() {
  inJob_ = false;
}
bool RecordingPrinter::BeginPrint(const QString&) {
  return true;
}
void RecordingPrinter::EndPrint() {
  inJob_ = false;
}

QStringList RecordingPrinter::TakePrinted() {
  QStringList taken;
  taken.swap(printed);
  return taken;
}

}  // namespace tamo::test
