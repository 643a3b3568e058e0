#include "program/linesandmarks.h"

#include <algorithm>

#include "common/failure.h"
#include "plans/filetail.h"
#include "plans/markpdf.h"
#include "plans/pdfappend.h"
#include "plans/workthread.h"
#include "records/arealine.h"
#include "records/datafolder.h"
#include "records/roomline.h"

namespace tamo {
namespace {

constexpr int kOpening = 20000;               // milliseconds that a plan may take to open
constexpr int kLooking = 5000;                // and one that is only looked at for marks
constexpr qint64 kMarksAt = qint64(8) << 20;  // of a plan's end, where its marks are added

// How every mark of the line begins what it keeps, as it stands in a plan.
QByteArray BytesOf(const TakeoffPlace& place) {
  MarkTie tie;
  tie.place = place;
  // Up to the system and the end of its line.
  const QString text = TextOfTie(tie).section(QLatin1Char('\n'), 0, 4) + QLatin1Char('\n');
  const QByteArray bytes = PdfText(text);
  return QByteArray("/") + kKeptKey + bytes.left(bytes.size() - 1);
}

QString SystemOf(const QString& row, bool area) {
  return area ? AreaLine(row).System() : RoomLine(row).System();
}

// As if the estimator selected it, again if it is selected already.
void SelectAnew(OrderedList& list, int row) {
  if (list.Index() == row) list.SetIndex(-1);
  list.SetIndex(row);
}

// The line comes into work. Why not, in words.
QString Select(OrderedList& sheets, OrderedList& lines, const TakeoffPlace& place) {
  const QString sheet =
      WithKind(place.area ? QStringLiteral("Area") : QStringLiteral("Room"), place.sheet);
  const int at = sheets.Find(place.sheet);
  if (at < 0) return sheet + QStringLiteral(" is not in the project any more.");
  SelectAnew(sheets, at);
  for (int row = 0; row < lines.Count(); ++row) {
    if (SystemOf(lines.Row(row), place.area) != place.system) continue;
    SelectAnew(lines, row);
    return {};
  }
  return sheet + QStringLiteral(" has no line of %1 any more.").arg(place.system);
}

}  // namespace

void LinesAndMarks::Bind() {
  ost_.ListOfMarks().goToLine = [this](const TakeoffPlace& place) { return GoToLine(place); };
  rooms_.ShowMarks.onClick = [this] { ShowMarks(rooms_); };
  areas_.ShowMarks.onClick = [this] { ShowMarks(areas_); };
}

unsigned LinesAndMarks::Revision() const {
  return rooms_.RoomList.RowsRevision() + rooms_.RoomsList.RowsRevision() +
         areas_.AreaList.RowsRevision() + areas_.AreasList.RowsRevision();
}

// The entry of the shell that can be chosen, with its guards.
MenuEntry* LinesAndMarks::EntryTo(bool areas) const {
  for (const auto& [shell, name] :
       {std::pair("OST", areas ? "NRFS" : "TakeoffRFS"),
        std::pair("Tamo", areas ? "NonFinishScheduleItems" : "TakeOffRoomFinishSchedule")}) {
    Form* form = kit_.desk.Find(QLatin1String(shell));
    MenuEntry* entry = form == nullptr ? nullptr : form->FindMenu(QLatin1String(name));
    if (entry != nullptr && form->Visible() && entry->Choosable()) return entry;
  }
  return nullptr;
}

QString LinesAndMarks::GoToLine(const TakeoffPlace& place) {
  if (place.project != kit_.shared.JobID)
    return QStringLiteral("It was entered in the project %1: open that project first.")
        .arg(place.project);
  TakeoffForm& form = place.area ? static_cast<TakeoffForm&>(areas_) : rooms_;
  if (!form.Visible()) {
    MenuEntry* entry = EntryTo(place.area);
    if (entry == nullptr) return QStringLiteral("The takeoff can't be opened now.");
    kit_.desk.ChooseMenu(*entry);
  }
  if (!form.Visible()) return {};
  kit_.desk.FocusWithoutActivation(place.area ? areas_.Area : rooms_.Room);
  if (place.area) {
    areas_.LoadAreas();
  } else {
    rooms_.Record().LoadRooms();
  }
  QString why = place.area ? Select(areas_.AreasList, areas_.AreaList, place)
                           : Select(rooms_.RoomsList, rooms_.RoomList, place);
  if (!why.isEmpty()) form.StatusText.SetCaption(why);
  return why;
}

TakeoffPlace LinesAndMarks::PlaceInWork(const TakeoffForm& form) const {
  const bool area = &form == &areas_;
  TakeoffPlace place{kit_.shared.JobID, area, {}, {}};
  place.sheet = area ? areas_.Area.Text() : rooms_.Room.Text();
  place.system = SystemOf(area ? areas_.AreaList.Selected() : rooms_.RoomList.Selected(), area);
  return place;
}

// In the order of the list of marks.
std::vector<QString> LinesAndMarks::MarksOf(const TakeoffPlace& place) const {
  std::vector<QString> names;
  const std::vector<Mark>& marks = ost_.Viewer().MarksAsDrawn();
  for (const size_t at : MarksInOrder(marks)) {
    const std::optional<MarkTie> tie = TieOfText(marks[at].kept);
    if (tie && tie->place == place) names.push_back(marks[at].name);
  }
  return names;
}

// Whether a plan that is not shown has marks of the line: it is opened and looked at. A locked one
// is tried with the password that was typed last.
bool LinesAndMarks::HasMarksOf(const QString& path, const TakeoffPlace& place) const {
  int error = 0;
  const std::shared_ptr<EnginePlan> plan = ost_.Viewer().OpenBeside(path, error);
  if (plan == nullptr) return false;
  const auto contents = std::make_shared<PlanContents>();
  WorkThread thread;
  const bool read = thread.Run(
      [plan, contents, password = ost_.PlanPassword.Text()] { *contents = plan->Open(password); },
      kLooking, {});
  plan->Abandon();
  return read && std::any_of(contents->marks.begin(), contents->marks.end(), [&](const Mark& mark) {
           const std::optional<MarkTie> tie = TieOfText(mark.kept);
           return tie && tie->place == place;
         });
}

// Another marked plan of the project that has marks of the line; "" for none. Mostly the line
// stands at the plan's end in plain letters. In one that is encrypted, or was written anew by
// whatever program, it does not: those are opened.
QString LinesAndMarks::PlanWithMarksOf(const TakeoffPlace& place) const {
  const QString folder = ProjectFolder(kit_.shared).Plans();
  Disk& disk = kit_.files.GetDisk();
  const QStringList names = disk.Names(kit_.files.Resolved(folder));
  const QByteArray wanted = BytesOf(place);
  QStringList others;
  for (const QString& name : names) {
    if (!name.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive)) continue;
    std::shared_ptr<FileReader> reader;
    QString path = folder + name;
    if (disk.OpenToRead(kit_.files.Resolved(path), reader) != kNoError) continue;
    const qint64 from = std::max(qint64(0), reader->Size() - kMarksAt);
    if (ReadPart(*reader, from, reader->Size() - from).contains(wanted)) return path;
    others += path;
  }
  const auto found = std::find_if(others.begin(), others.end(), [&](const QString& path) {
    return !ost_.Viewer().ShowsFile(path) && HasMarksOf(path, place);
  });
  return found == others.end() ? QString() : *found;
}

// The plan of the project is on the screen, or else the one that has marks of the line.
void LinesAndMarks::BringUpPlan(const TakeoffPlace& place) {
  PdfDraw& viewer = ost_.Viewer();
  if (viewer.ShownPath().isEmpty() && !ost_.PlanLocation.Empty()) ost_.LoadPDF();
  viewer.FinishOpening(kOpening);
  if (!MarksOf(place).empty()) return;
  const QString plan = PlanWithMarksOf(place);
  if (plan.isEmpty()) return;
  ost_.PlanLocation.SetText(plan);
  ost_.LoadPDF();
  viewer.FinishOpening(kOpening);
}

void LinesAndMarks::ShowMarks(TakeoffForm& form) {
  const TakeoffPlace place = PlaceInWork(form);
  if (place.sheet.isEmpty() || place.system.isEmpty()) {
    form.StatusText.SetCaption(
        QStringLiteral("Select a line first; its marks are shown on the plan then."));
    return;
  }
  if (MarksOf(place).empty()) BringUpPlan(place);
  const std::vector<QString> names = MarksOf(place);
  if (names.empty()) {
    form.StatusText.SetCaption(
        QStringLiteral("No plan has marks that were entered into %1.").arg(place.InWords()));
    return;
  }
  MarkHand& hand = ost_.Viewer().Hand();
  const Mark* chosen = hand.Chosen();
  const auto at =
      chosen == nullptr ? names.end() : std::find(names.begin(), names.end(), chosen->name);
  const QString next =
      at == names.end() || std::next(at) == names.end() ? names.front() : *std::next(at);
  ost_.Show();
  kit_.desk.Focus(ost_.picPdfDraw);
  hand.Choose(next);
  hand.Show(names);
}

}  // namespace tamo
