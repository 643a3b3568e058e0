#include "reports/reportsform.h"

// Former states of the bid: looking at one, comparing with one, keeping one.

namespace tamo {

void ReportsForm::BindVersions() {
  BackToNow.onClick = [this] {
    LookAt(nullptr);
    RunByTitle();
  };
  KeepPrinted.onClick = [this] {
    const QString name =
        QStringLiteral("printed %1").arg(kit_.platform.clock.Today().toString(Qt::ISODate));
    if (!bid_.Keep(name)) return;
    KeepPrinted.Hide();
    VersionLabel.SetCaption(QStringLiteral("Kept as version \"%1\".").arg(name));
    VersionLabel.Show();
  };
  onClose = [this] {
    LookAt(nullptr);
    return true;
  };
}

void ReportsForm::OfferToKeep() {
  KeepPrinted.SetCaption(QStringLiteral("&Keep This Version: printed %1")
                             .arg(kit_.platform.clock.Today().toString(Qt::ISODate)));
  KeepPrinted.Show();
}

void ReportsForm::LookAt(std::shared_ptr<const FormerBid> former) {
  bid_.LookAt(std::move(former));
  VersionLabel.SetCaption(bid_.Mark());
  VersionLabel.SetShown(bid_.Former());
  BackToNow.SetShown(bid_.Former());
  SetCaption(bid_.Former() ? QStringLiteral("Reports - ") + bid_.Mark()
                           : QStringLiteral("Reports"));
}

void ReportsForm::WhatChanged() {
  if (auto sent = bid_.Sent()) CompareWith(std::move(sent));
}

void ReportsForm::CompareWith(std::shared_ptr<const FormerBid> then) {
  if (then == nullptr) return;
  compared_ = std::move(then);
  LookAt(nullptr);
  ShowWindow();
  Make([this] {
    kind_ = ReportKind::WhatChanged;
    Fill(bid_.CompareWith(*compared_, Source()));
  });
}

}  // namespace tamo
