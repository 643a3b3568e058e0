#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "plans/cancelflag.h"
#include "plans/mark.h"
#include "plans/pagecontent.h"
#include "plans/planguide.h"
#include "plans/plansource.h"

// What the viewer asks of an engine for PDFs, and all that it knows of one. Nothing here shares
// memory with the engine but the buffers of a call, so that an engine may well work in another
// process. Places are points on the page as it is looked at, from its top left corner; pages count
// from 1; error numbers are those of files (0 done, 57 the engine's own, with words).
namespace tamo {

// What a plan holds, read once when it is opened.
struct PlanContents {
  int error = 0;
  QString problem;             // in words, when error is not 0
  bool wantsPassword = false;  // it opens with another password than the one given
  // Why a person should think twice before marking it, as a sentence; empty when nothing is
  // against it.
  QString reservation;
  QString caution;  // what can't be saved of it later, as a sentence; empty when all can
  std::vector<PageSize> sizes;
  std::vector<Mark> marks;  // the annotations of this program, oldest first
};

// What a save adds to and takes from the annotations of a plan. A mark that has changed is in both.
struct MarkChanges {
  std::vector<Mark> added;
  QStringList removed;  // names
  double markerSize = 13.5;
  bool Empty() const { return added.empty() && removed.empty(); }
};

// An incremental update: the bytes that, appended to the file, bring the changes into it.
struct PlanUpdate {
  int error = 0;
  QString problem;            // in words, when error is not 0
  bool needsRewrite = false;  // nothing can be appended to this plan: WriteWhole first
  QByteArray bytes;
};

// A rectangle of a page in pixels of the whole page, scaled and turned.
struct PaintPart {
  double pixelsPerPoint = 1;
  int turn = 0;  // 0, 90, 180, 270 degrees clockwise
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  bool coarse = false;  // fewer shades at the edges, twice as fast
};

// What is missing from a page although the rest of it is shown.
struct PageGaps {
  bool pictures = false;  // that can't be decoded, or not in the memory there is
  bool patterns = false;  // so fine that they are only begun
  bool contents = false;  // damaged
  bool operator==(const PageGaps&) const = default;
  bool None() const { return *this == PageGaps(); }
};

// A page that the engine holds ready, so that its parts are painted without reading it again. The
// engine frees it when the last hold on it goes, on whatever thread that is.
class LoadedPage {
 public:
  virtual ~LoadedPage() = default;
  virtual PageSize Size() const = 0;
  // As far as is known: painting may find more.
  virtual PageGaps Gaps() const { return {}; }
};

// One plan. Every call blocks until it is done, cancelled or failed, may come from any thread but
// should never come from that of the windows, and several may be in work at once. None throws.
class EnginePlan {
 public:
  virtual ~EnginePlan() = default;

  // First of all and once.
  virtual PlanContents Open(const QString& password) = 0;

  // Null when the page can't be read or was cancelled.
  virtual std::shared_ptr<LoadedPage> LoadPage(int page, CancelFlag& cancel) = 0;
  // Paints into `pixels`, part.width * part.height of them row by row, 0xffRRGGBB each; without
  // the marks of this program. False when it was cancelled or failed; the pixels are then of no
  // use.
  virtual bool Paint(const LoadedPage& page, const PaintPart& part, CancelFlag& cancel,
                     uint32_t* pixels) = 0;
  virtual PageContent ReadContent(int page, CancelFlag& cancel) = 0;
  // The same without paths and pictures, several times as fast.
  virtual PageContent ReadTexts(int page, CancelFlag& cancel) { return ReadContent(page, cancel); }

  virtual PlanGuide ReadGuide() { return {}; }
  virtual std::vector<PageLink> ReadLinks(int /*page*/) { return {}; }
  // Of each layer of the guide whether it is shown, in all that is loaded and read from then on.
  // False when that can't be.
  virtual bool ShowLayers(const std::vector<bool>& /*shown*/) { return false; }

  // The plan counts as having the changes from then on, until ForgetUpdate takes them back because
  // the bytes did not reach the disk.
  virtual PlanUpdate BuildUpdate(const MarkChanges& changes) = 0;
  virtual void ForgetUpdate() = 0;
  // The whole plan anew, repaired, in parts. `sink` returns 0 or an error number, which ends it and
  // is given back.
  using Sink = std::function<int(const QByteArray& part)>;
  virtual int WriteWhole(const Sink& sink, QString& problem) = 0;

  // The plan is not wanted any more: calls in work and to come fail within a moment.
  virtual void Abandon() = 0;
};

class PlanEngine {
 public:
  virtual ~PlanEngine() = default;
  // Comes back at once; nothing is read before Open. Null when there is no memory.
  virtual std::shared_ptr<EnginePlan> NewPlan(std::shared_ptr<PlanSource> source) = 0;
};

}  // namespace tamo
