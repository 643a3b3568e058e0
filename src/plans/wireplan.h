#pragma once

#include "plans/planengine.h"
#include "plans/wire.h"

namespace tamo {

// What is said of plans on the wire (docs/plan-engine.md). Each Take checks what it reads: what no
// honest worker says makes the reader bad, or is brought into what the program can stand.

enum class WireKind : unsigned {
  Open = 1,     // file size, password -> PlanContents, what guards the worker
  LoadPage,     // page -> whether, size, gaps; the page is known by this call's number from then on
  Paint,        // call number of the page, part, slot of the tiles -> whether, gaps
  ReadContent,  // page -> PageContent
  BuildUpdate,  // MarkChanges -> PlanUpdate
  ForgetUpdate,
  WriteWhole,  // -> parts, each waits for GoOn; then error, problem
  GoOn,        // call number, error number of the sink
  Cancel,      // call number
  Drop,        // call number of a page
  Answer,      // of the worker: the last word on a call
  Part,        // of the worker: a part of WriteWhole
  ReadTexts,   // page -> PageContent without paths and pictures
  ReadGuide,   // -> PlanGuide
  ReadLinks,   // page -> PageLinks
  ShowLayers,  // of each layer whether it is shown -> whether that could be done
  Last = ShowLayers
};

// How a worker is kept from doing harm.
struct WorkerGuard {
  bool calls = false;  // system calls are filtered
  bool files = false;  // files and network are out of its reach
};

void Put(WireWriter& wire, PageSize size);
void Take(WireReader& wire, PageSize& size);
void Put(WireWriter& wire, const PageGaps& gaps);
void Take(WireReader& wire, PageGaps& gaps);
void Put(WireWriter& wire, const PaintPart& part);
void Take(WireReader& wire, PaintPart& part);
void Put(WireWriter& wire, const PlanContents& contents);
void Take(WireReader& wire, PlanContents& contents);
void Put(WireWriter& wire, const MarkChanges& changes);
void Take(WireReader& wire, MarkChanges& changes);
void Put(WireWriter& wire, const PlanUpdate& update);
void Take(WireReader& wire, PlanUpdate& update);
// wirecontent.cpp
void Put(WireWriter& wire, const PageContent& content);
void Take(WireReader& wire, PageContent& content);

// An error number of a worker: 0, or the engine's own.
void PutOutcome(WireWriter& wire, int error, const QString& problem);
void TakeOutcome(WireReader& wire, int& error, QString& problem);

}  // namespace tamo
