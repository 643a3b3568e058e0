#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <deque>

#include "common/services.h"

namespace tamo::test {

class FixedClock : public Clock {
 public:
  QDate today = QDate(2021, 12, 14);
  QDate Today() const override { return today; }
  QDateTime now;  // not set: the machine's
  QDateTime Now() const override { return now.isValid() ? now : Clock::Now(); }
};

// Records every box; questions take the next waiting answer. A question with no waiting answer
// counts as No and is noted in `unanswered`.
class ScriptedMessages : public Messages {
 public:
  void Tell(const QString& text) override;
  bool Ask(const QString& text) override;

  std::deque<bool> answers;
  int unanswered = 0;
  QStringList shown;  // since last taken: the lines of each text, then "--", "-- Yes" or "-- No"
  QStringList texts;  // every text ever shown, whole
  QStringList TakeShown();
};

// Records what was printed: "-- job", "-- font NAME, size N", then the lines.
class RecordingPrinter : public Printer {
 public:
  void SetFont(const QString& name, int points) override;
  void PrintLine(const QString& line) override;
  void EndPage() override;
  bool BeginPrint(const QString& title) override;
  void EndPrint() override;

  QStringList printed;
  QStringList TakePrinted();

 private:
  QString font_;
  QString fontInForce_;
  bool inJob_ = false;
};

class RecordingClipboard : public Clipboard {
 public:
  void Clear() override { text.clear(); }
  void SetText(const QString& newText) override { text = newText; }
  QString text;
};

}  // namespace tamo::test
