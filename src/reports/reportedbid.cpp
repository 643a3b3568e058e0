#include "reports/reportedbid.h"

#include "records/projectrecord.h"
#include "reports/compare.h"

namespace tamo {

QString ReportedBid::Mark() const {
  if (former_ == nullptr) return {};
  return QStringLiteral("Not the bid as it stands: ") + former_->Words();
}

Markups ReportedBid::LoadedMarkups() const {
  Markups markups;
  LoadMarkups(former_->GetFiles(), kit_.shared, markups);
  return markups;
}

ProjectFacts ReportedBid::Facts() const {
  if (former_ == nullptr) return record_.Facts();
  JobNFO job;
  ReadProjectRecord(former_->GetFiles(), kit_.shared, job);
  return {kit_.shared.JobName, job.bidDate,    job.phase,     job.addenda,
          job.inclusions,      job.exclusions, job.architect, job.notes};
}

Report ReportedBid::CompareWith(const FormerBid& then, const ReportSource& source) {
  Markups markupsThen;
  Markups markupsNow;
  LoadMarkups(then.GetFiles(), kit_.shared, markupsThen);
  LoadMarkups(kit_.files, kit_.shared, markupsNow);
  return Compare(
      {{then.GetFiles(), source.project, source.progress, source.wholeQuantities, source.uncounted},
       markupsThen,
       then.Words()},
      {source, markupsNow, QStringLiteral("the bid as it stands")},
      kit_.shared.JobID + QStringLiteral("   ") + kit_.shared.JobName);
}

std::shared_ptr<const FormerBid> ReportedBid::Sent() {
  Messages& messages = kit_.desk.GetMessages();
  Version version;
  if (!history_.SentVersion(version)) {
    messages.Tell(QStringLiteral(
        "No version of this bid was kept, so there is nothing to compare it with. Choose Keep This "
        "Version in the menu Project when you send a bid; or choose Versions, and a day."));
    return nullptr;
  }
  std::shared_ptr<const FormerBid> sent = history_.LookAt(version);
  if (sent == nullptr)
    messages.Tell(
        QStringLiteral("The version \"%1\" is damaged: its file %2 was changed or cut off.")
            .arg(version.head.name, version.path));
  return sent;
}

bool ReportedBid::Keep(const QString& name) {
  const QString refusal = history_.KeepVersion(name);
  if (!refusal.isEmpty()) kit_.desk.GetMessages().Tell(refusal);
  return refusal.isEmpty();
}

}  // namespace tamo
