#include "common/failure.h"
#include "plans/wireguide.h"
#include "plans/workerplan.h"

// What a worker tells of the way through its plan.

namespace tamo {
namespace {

constexpr int kPatience = 20000;  // milliseconds

}  // namespace

PlanGuide WorkerPlan::ReadGuide() {
  const WorkerLink::Answer answer = Ask([](const Link& link) {
    return link->Call(WireKind::ReadGuide, {}, {kPatience, nullptr, -1, {}});
  });
  PlanGuide guide;
  WireReader wire(answer.body);
  Take(wire, guide);
  if (answer.there && wire.AtEnd()) return guide;
  guide = {};
  guide.error = kFileOther;
  guide.problem = QStringLiteral("the part of this program that reads plans ended over them");
  return guide;
}

std::vector<PageLink> WorkerPlan::ReadLinks(int page) {
  WireWriter out;
  out.Number(page);
  const QByteArray body = out.Take();
  const WorkerLink::Answer answer = Ask([&body](const Link& link) {
    return link->Call(WireKind::ReadLinks, body, {kPatience, nullptr, -1, {}});
  });
  std::vector<PageLink> links;
  WireReader wire(answer.body);
  Take(wire, links);
  if (!answer.there || !wire.AtEnd()) links.clear();
  return links;
}

bool WorkerPlan::ShowLayers(const std::vector<bool>& shown) {
  {
    const std::lock_guard<std::mutex> guard(mutex_);
    layers_ = shown;
  }
  WireWriter out;
  Put(out, shown);
  const QByteArray body = out.Take();
  const WorkerLink::Answer answer = Ask([&body](const Link& link) {
    return link->Call(WireKind::ShowLayers, body, {kPatience, nullptr, -1, {}});
  });
  WireReader wire(answer.body);
  const bool done = wire.Flag();
  return answer.there && wire.AtEnd() && done;
}

}  // namespace tamo
