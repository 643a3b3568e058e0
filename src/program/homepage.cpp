#include "program/homepage.h"

#include <QMetaObject>
#include <QSet>
#include <utility>

#include "common/paths.h"
#include "docs/docsform.h"
#include "plans/planname.h"
#include "program/hometexts.h"
#include "program/samplebid.h"
#include "records/projectlist.h"

namespace tamo {

// Tells that something was stored, and hands on to whoever keeps former states.
class HomePage::Saves : public FileWitness {
 public:
  explicit Saves(Files& files) : files_(files), next_(files.witness) { files_.witness = this; }
  ~Saves() override { files_.witness = next_; }
  Saves(const Saves&) = delete;
  Saves& operator=(const Saves&) = delete;

  void Replaced(const QString& path, std::shared_ptr<FileReader> former) override {
    any = true;
    changed_.insert(path);
    if (next_ != nullptr) next_->Replaced(path, std::move(former));
  }
  bool MakeRoom() override { return next_ != nullptr && next_->MakeRoom(); }
  // Since the last call.
  QStringList TakeChanged() { return std::exchange(changed_, {}).values(); }

  bool any = true;

 private:
  Files& files_;
  FileWitness* const next_;
  QSet<QString> changed_;  // files
};

HomePage::HomePage(const Kit& kit, const Forms& forms)
    : kit_(kit), forms_(forms), page_(forms.main), reader_(kit.platform.disk, [this] {
        QMetaObject::invokeMethod(
            &here_,
            [this] {
              const auto answer = reader_.Take();
              // What could not be stored is only here, and not among what was read.
              if (!answer || answer->project != job_ || !kit_.files.PendingSaves().empty()) return;
              ShowFacts();
              ShowFigures(answer->state);
            },
            Qt::QueuedConnection);
      }) {
  BindStart();
  BindState();
  ShowParts();
}

HomePage::~HomePage() = default;

namespace {

// The button does what the menu entry does, with its guards.
void LeadTo(Button& button, MenuEntry& entry) {
  button.onClick = [&entry] {
    if (entry.Choosable() && entry.onClick) entry.onClick();
  };
}

}  // namespace

void HomePage::BindStart() {
  LeadTo(page_.HomeCreate, forms_.main.menu.NewProject);
  LeadTo(page_.HomeOpen, forms_.main.menu.OpenProject);
  page_.HomeSample.onClick = [this] { OpenSample(); };
  page_.HomeGuide.onClick = [this] {
    forms_.docs.ShowTopic(QStringLiteral("StartDocs.tamo"));
    forms_.docs.Show(&forms_.main);
  };
  const auto projects = page_.Projects();
  const auto plans = page_.Plans();
  for (size_t i = 0; i < projects.size(); ++i) {
    projects[i]->onClick = [this, i] { OpenRecent(i); };
    plans[i]->onClick = [this, i] {
      const QString path = recent_.plans.value(static_cast<qsizetype>(i));
      if (!path.isEmpty() && openPlan) openPlan(path);
    };
  }
}

// Each figure leads to where it is made.
void HomePage::BindState() {
  TamoMenu& menu = forms_.main.menu;
  LeadTo(page_.HomeTotal, menu.RecapSheet);
  LeadTo(page_.HomeHours, menu.DetailedRecap);
  LeadTo(page_.HomeBidDate, menu.ProjectInformation);
  LeadTo(page_.HomeRooms, menu.EnterRoomFinishSchedule);
  LeadTo(page_.HomeAreas, menu.NonFinishScheduleItems);
  LeadTo(page_.HomeEmptyLines, menu.TakeOffRoomFinishSchedule);
  LeadTo(page_.HomeUnpriced, menu.UnitsPricing);
  LeadTo(page_.HomeItems, menu.BottomLineItems);
  LeadTo(page_.HomeAdjustment, menu.PriceAdjustment);
  LeadTo(page_.HomeThumbnail, menu.OST1);
  page_.HomeLast.onClick = [this, &menu] {
    MenuEntry& entry = forms_.takingBack.LastWasInArea() ? menu.NonFinishScheduleItems
                                                         : menu.EnterRoomFinishSchedule;
    if (entry.Choosable() && entry.onClick) entry.onClick();
  };
}

void HomePage::OpenSample() {
  QString problem;
  const QString id = CopySampleBid(kit_, problem);
  if (!problem.isEmpty()) kit_.desk.GetMessages().Tell(problem);
  if (!id.isEmpty()) OpenProject(id);
}

void HomePage::OpenRecent(size_t at) {
  std::vector<RecentThings::Project> here;
  for (const RecentThings::Project& project : recent_.projects) {
    if (project.folder == kit_.shared.DataPath) here.push_back(project);
  }
  if (at < here.size()) OpenProject(here[at].id);
}

// As if it were picked from the list.
void HomePage::OpenProject(const QString& id) {
  kit_.shared.OPN = QStringLiteral("2");
  forms_.main.picker.LoadJobsList();
  OrderedList& list = forms_.main.panel.JobsList;
  for (int row = 0; row < list.Count(); ++row) {
    if (IdToOpen(list.Row(row)) != id) continue;
    list.SetIndex(row);
    return;
  }
  kit_.desk.GetMessages().Tell(
      QStringLiteral("The project %1 is not in the project list any more.").arg(id));
}

void HomePage::Begin() {
  begun_ = true;
  recent_ = ReadRecent(kit_.files, kit_.platform.configFolder, kit_.shared.Separator);
  saves_ = std::make_unique<Saves>(kit_.files);
  Follow();
}

bool HomePage::InSight() const {
  return forms_.main.Visible() && page_.HomePage.Shown();
}

void HomePage::ShowParts() {
  // In mode 2 the plan is the main window.
  page_.HomePage.SetShown(!forms_.main.panel.JobNFOFrame.Shown() &&
                          kit_.shared.GUIText != QLatin1String("2"));
  page_.HomeStart.SetShown(kit_.shared.JobID.isEmpty());
  page_.HomeState.SetShown(!kit_.shared.JobID.isEmpty());
}

BidReader::Question HomePage::TheQuestion() const {
  return {kit_.shared, forms_.pricing.MarkupTexts(), false, {}};
}

QStringList HomePage::Unsaved() const {
  QStringList texts;
  for (const Files::Pending& save : kit_.files.PendingSaves()) texts << save.path << save.text;
  return texts;
}

void HomePage::Follow() {
  ShowParts();
  if (!begun_) return;
  saves_->any = NoteOpened() || saves_->any;
  if (open_ != kit_.shared.JobID) {
    open_ = kit_.shared.JobID;
    opened_ = true;
  }
  if (!InSight()) return;
  const bool another = job_ != kit_.shared.JobID;
  // What could not be stored is only here. It is looked through when it changed, and not by every
  // key.
  const QStringList unsaved = Unsaved();
  const bool pending = !unsaved.isEmpty();
  if (!another && unsaved == unsaved_ && !saves_->any) return;
  saves_->any = false;
  unsaved_ = unsaved;
  job_ = kit_.shared.JobID;
  if (job_.isEmpty()) {
    ShowRecent();
    return;
  }
  // Who types has nothing to wait for, not even for the page's own painting.
  if (another || pending) ShowFacts();
  if (pending) {
    ShowFigures(BidReader::Read(kit_.files, TheQuestion()));
  } else {
    AskLater();
  }
}

// When the event is over and the windows show it; once, however many events there were.
void HomePage::AskLater() {
  if (asking_) return;
  asking_ = true;
  QMetaObject::invokeMethod(
      &here_,
      [this] {
        asking_ = false;
        BidReader::Question question = TheQuestion();
        question.opened = std::exchange(opened_, false);
        question.changed = saves_->TakeChanged();
        reader_.Ask(std::move(question));
      },
      Qt::QueuedConnection);
}

void HomePage::Tick() {
  if (!begun_ || !InSight() || kit_.shared.JobID.isEmpty()) return;
  AskLater();
}

void HomePage::Refresh() {
  ShowParts();
  if (!begun_) recent_ = ReadRecent(kit_.files, kit_.platform.configFolder, kit_.shared.Separator);
  NoteOpened();
  job_ = kit_.shared.JobID;
  if (job_.isEmpty()) {
    ShowRecent();
    return;
  }
  ShowFacts();
  Files fresh(kit_.platform.disk);
  Files& files = kit_.files.PendingSaves().empty() ? fresh : kit_.files;
  ShowFigures(BidReader::Read(files, TheQuestion()));
}

bool HomePage::NoteOpened() {
  bool more = false;
  const SharedFields& shared = kit_.shared;
  if (!shared.JobID.isEmpty() && !shared.JobName.isEmpty() &&
      !forms_.main.panel.JobNFOFrame.Shown())
    more = recent_.NoteProject({shared.DataPath, shared.JobID, shared.JobName});
  const QString plan = forms_.ost.Viewer().ShownPath();
  const bool another = plan != plan_;
  if (another) {
    plan_ = plan;
    const bool blank = plan == kit_.files.Resolved(ProgramFile(shared, "Blank.pdf"));
    if (!plan.isEmpty() && !blank && !NamesAbout(plan)) more = recent_.NotePlan(plan) || more;
  }
  if (more) WriteRecent(kit_.files, kit_.platform.configFolder, shared.Separator, recent_);
  return another;
}

void HomePage::ShowRecent() {
  const auto projects = page_.Projects();
  const auto plans = page_.Plans();
  size_t at = 0;
  for (const RecentThings::Project& project : recent_.projects) {
    if (project.folder == kit_.shared.DataPath)
      projects[at++]->SetCaption(project.id + QStringLiteral("  ") + project.name);
  }
  page_.HomeNoProjects.SetShown(at == 0);
  for (size_t i = 0; i < projects.size(); ++i) projects[i]->SetShown(i < at);
  const auto known = static_cast<size_t>(recent_.plans.size());
  page_.HomeNoPlans.SetShown(known == 0);
  for (size_t i = 0; i < plans.size(); ++i) {
    plans[i]->SetShown(i < known);
    if (i >= known) continue;
    const QString path = recent_.plans[static_cast<qsizetype>(i)];
    plans[i]->SetCaption(FileNameOf(path));
    plans[i]->SetHover(path);
  }
}

void HomePage::ShowFacts() {
  page_.HomeName.SetCaption(kit_.shared.JobName);
  page_.HomeNumber.SetCaption(kit_.shared.JobID);
  page_.HomeBidDate.SetCaption(
      QStringLiteral("Bid date: ") +
      BidDateText(forms_.main.panel.BidDate.Text(), kit_.platform.clock.Today()));
  const QString plan = forms_.ost.PlanLocation.Text();
  page_.HomeThumbnail.SetCaption(QStringLiteral("Plan: ") +
                                 (plan.isEmpty() ? QStringLiteral("none") : FileNameOf(plan)));
  const QString last = forms_.takingBack.LastEntry();
  page_.HomeLast.SetCaption(
      QStringLiteral("Last entry: ") +
      (last.isEmpty() ? QStringLiteral("none since the program began") : last));
}

void HomePage::ShowFigures(const BidOverview& state) {
  const HomeTexts texts = TextsOf(state);
  page_.HomeTotal.SetCaption(QStringLiteral("Recap total: ") + texts.total);
  page_.HomeHours.SetCaption(QStringLiteral("Labor hours: ") + texts.hours);
  page_.HomeRooms.SetCaption(QStringLiteral("Rooms: ") + texts.rooms);
  page_.HomeAreas.SetCaption(QStringLiteral("Areas: ") + texts.areas);
  page_.HomeEmptyLines.SetCaption(QStringLiteral("Lines without a quantity: ") + texts.emptyLines);
  page_.HomeUnpriced.SetCaption(QStringLiteral("Systems without a price: ") + texts.unpriced);
  page_.HomeItems.SetCaption(QStringLiteral("Bottom line items: ") + texts.items);
  page_.HomeAdjustment.SetCaption(QStringLiteral("Price adjustment: ") + texts.adjustment);
  page_.HomeUncounted.SetCaption(texts.uncounted);
  page_.HomeUncounted.SetShown(!texts.uncounted.isEmpty());
}

}  // namespace tamo
