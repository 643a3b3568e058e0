#include "takeoff/takeoffform.h"

#include "common/chain.h"
#include "common/failure.h"
#include "records/namelists.h"
#include "takeoff/takeoffsystem.h"

namespace tamo {

TakeoffForm::TakeoffForm(const Kit& kit, PlanTools& plan, MissingSystemPricing& pricing,
                         TakeoffReportRefresh& reports, TakeoffExits& exits, TakingBack& steps,
                         const QString& name)
    : Form(kit.desk, name),
      kit_(kit),
      plan_(plan),
      pricing_(pricing),
      reports_(reports),
      exits_(exits),
      steps_(steps) {
  steps_.Add(*this);
  Units.readOnly = true;
  Units.inTabOrder = false;
  KeepUnseen(System);
}

void TakeoffForm::BindWindow(MenuEntry& dsw) {
  onActivate = [this] { Activated(); };
  onKeyPreview = [this](Key& key) { TakeKey(key); };
  dsw.onClick = [this] {
    exits_.ShowOST();
    Show(OwnerForm());
  };
}

void TakeoffForm::TakeKey(Key& key) {
  if (key.Is(Key::Name::Delete)) plan_.DeleteKey();
  if (!key.Is(Key::Name::TakeBack) && !key.Is(Key::Name::BringBack)) return;
  const bool back = key.Is(Key::Name::TakeBack);
  key.Drop();
  StatusText.SetCaption(back ? steps_.TakeBack() : steps_.BringBack());
}

void TakeoffForm::Activated() {
  if (!kit_.shared.JobID.isEmpty()) {
    Init();
    return;
  }
  exits_.ShowMainForm();
  Hide();
  exits_.ShowProjectPanel();
}

int TakeoffForm::ReadDescriptions() {
  QStringList names;
  const int error = ReadNamesDelimited(kit_.files, kit_.shared, NameList::Systems, names);
  DescriptionsList.SetRows(names);
  namesRead_ = names;
  return error;
}

void TakeoffForm::LoadDescriptionsIfEmpty() {
  if (DescriptionsList.Empty() || DescriptionsList.Row(0).isEmpty()) LoadDescriptions();
}

void TakeoffForm::SaveDescriptions() {
  const QStringList names = DescriptionsList.Rows();
  WriteNames(kit_.files, kit_.shared, NameList::Systems, names, namesRead_);
  namesRead_ = names;
}

void TakeoffForm::TellToPriceFirst() {
  kit_.desk.GetMessages().Tell(QStringLiteral("Enter pricing information first."));
  Hide();
}

int TakeoffForm::FetchSystem(const QString& name) {
  int error = 0;
  QStringList fetched;
  const TakeoffSystem system = LoadTakeoffSystem(kit_.files, kit_.shared, name, fetched, error);
  const bool unread = error != kNoError && !IsMissing(error);
  if (unread && system.units.isEmpty())
    throw RunTimeFailure(error,
                         QStringLiteral("The system \"%1\" can't be read: %2. Its unit is not "
                                        "known, so nothing was entered for it.")
                             .arg(name, ReadReasonText(error)));
  if (!fetched.isEmpty()) System.SetRows(fetched);
  Units.SetText(system.units);
  kit_.shared.LineColor = system.lineColour;
  plan_.SetPenColour(system.lineColour);
  plan_.ResetMeasure();
  ShowScale();
  return unread ? kNoError : error;  // with what was read of it earlier
}

void TakeoffForm::ShowStatus(const QString& what, int at, int names, const OrderedList& lines) {
  const QString place = at >= 0 ? QStringLiteral("%1 %2 of %3").arg(what).arg(at + 1).arg(names)
                                : QStringLiteral("%1 %2s").arg(names).arg(what.toLower());
  const int count = lines.Count();
  const QString line = lines.Index() >= 0
                           ? QStringLiteral("line %1 of %2").arg(lines.Index() + 1).arg(count)
                           : QStringLiteral("%1 lines").arg(count);
  StatusText.SetCaption(place + QStringLiteral(", ") + line);
}

QString WithKind(const QString& kind, const QString& name) {
  return name.startsWith(kind, Qt::CaseInsensitive) ? name : kind + QLatin1Char(' ') + name;
}

QString InSheet(const QString& name) {
  return QStringLiteral(" in \"%1\"").arg(name);
}

void PickToTop(OrderedList& list, TextField& field) {
  const QString name = list.Selected();
  field.SetText(name);
  list.Remove(list.Index());
  list.Insert(0, name);
}

}  // namespace tamo
