#pragma once

#include <QSet>
#include <QString>
#include <optional>
#include <vector>

#include "plans/freepointer.h"
#include "plans/mark.h"
#include "plans/plankey.h"

namespace tamo {

class PdfDraw;

// The mark that is chosen on the sheets, to be changed: by the pointer while no tool is in hand, or
// by keys. Its points are moved, it is named, coloured or taken away. Only marks of this program
// can be chosen. Each change is one of the viewer's steps and raises onMarkEdited.
class MarkHand : public FreePointer {
 public:
  explicit MarkHand(PdfDraw& viewer) : viewer_(viewer) {}

  // The mark, until marks come, go or change; null when none is chosen.
  const Mark* Chosen() const;
  int Point() const;  // the one in hand; -1 for none
  // Turns to its sheet. False when there is no such mark, or something is being drawn.
  bool Choose(const QString& name);
  void LetGo() override;
  void Forget();  // another plan comes up; nothing is told
  // These marks are shown as well, until the hand lets go.
  void Show(const std::vector<QString>& names);
  const QSet<QString>& Shown() const { return shown_; }
  // The next mark in the order of the list, or the one before; puts the tool in hand away.
  void Step(int by);

  // With no tool in hand. A press on a point of the chosen mark takes hold of it; a click elsewhere
  // chooses the mark there, again there the one below it, or none.
  void Press(PagePoint at) override;
  void Move(PagePoint at, bool shift) override;
  void Release(PagePoint at, bool shift) override;
  bool Holds() const { return held_.has_value(); }
  void Pulled() { pressed_.reset(); }  // the press has become a pull at the sheet
  // The mark as it would stand where the pointer has taken its point.
  const std::optional<Mark>& Held() const { return held_; }
  bool TakeKey(const PlanStroke& stroke);
  // The last change was a step of the arrows, and another may follow.
  bool Nudging() const { return nudging_; }

  // They do nothing when no mark is chosen.
  void Rename(const QString& title);
  void Recolour(const QString& code);  // RRRGGGBBB
  void Delete();
  QString InWords() const;  // the chosen mark

 private:
  double Reach() const;
  bool MayChoose();
  Mark Moved(const Mark& mark, int point, PagePoint to) const;
  QString WhyNot(const Mark& moved) const;
  bool Change(const Mark& mark, bool joinLast);
  void ChooseAt(PagePoint at);
  void NextPoint();
  bool Nudge(const PlanStroke& stroke);
  void Tell(const QString& words);
  void TellChosen();

  PdfDraw& viewer_;
  QString name_;
  QSet<QString> shown_;
  int point_ = -1;
  bool nudging_ = false;
  std::optional<PagePoint> pressed_;
  std::optional<Mark> held_;
  PagePoint grip_;  // where beside its point a mark is held that is moved as a whole
};

// The marks in the order of their list: by sheet, then as they were drawn. Indices of `marks`.
std::vector<size_t> MarksInOrder(const std::vector<Mark>& marks);

}  // namespace tamo
