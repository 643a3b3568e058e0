#include "takeoff/takingback.h"

#include <algorithm>
#include <utility>

#include "common/failure.h"
#include "common/paths.h"
#include "common/textlines.h"
#include "records/datafolder.h"
#include "takeoff/listchange.h"

namespace tamo {
namespace {

// The room, area or list that a file holds, for the estimator.
QString InWords(const QString& path) {
  const QString file = FileNameOf(path);
  const QString name = file.left(file.lastIndexOf(QLatin1Char('.')));
  if (file.endsWith(QLatin1String(".rfs"))) return QStringLiteral("The room \"%1\"").arg(name);
  if (file.endsWith(QLatin1String(".ato"))) return QStringLiteral("The area \"%1\"").arg(name);
  return name == QLatin1String("Rooms") ? QStringLiteral("The list of rooms")
                                        : QStringLiteral("The list of areas");
}

// The rows are what this entry left or found; a form that has gone on since keeps its own texts.
SheetState Moved(const SheetState& now, const SheetState& from, SheetState to) {
  if (now.line != from.line) to.line = SheetState::kAsItIs;
  for (qsizetype i = 0; i < to.texts.size(); ++i) {
    if (now.texts.value(i) != from.texts.value(i)) to.texts[i] = now.texts.value(i);
  }
  if (now.entries != from.entries) to.entries = now.entries;
  return to;
}

}  // namespace

void TakingBack::Begin(const QString& what, const SheetScreen& screen) {
  if (!open_) open_.emplace();
  if (open_->screen == nullptr) {
    open_->screen = &screen;
    open_->before = screen.State();
  }
  open_->what = what;
}

void TakingBack::Measured(const std::vector<MeasuredMarks::Measured>& fields,
                          const EnteredLine& line) {
  if (open_) open_->marks = marks_.MarksOf(fields, line);
}

void TakingBack::Stores(const QString& path, bool shared) {
  if (!open_) open_.emplace();
  for (const StepFile& file : open_->files) {
    if (file.path == path) return;
  }
  int error = kNoError;
  const QByteArray before = Bytes(path, error);
  open_->files.push_back({path, before, {}, shared, error != kNoError});
}

// Files that came out as they were are none of the entry's. One that could not be read holds lines
// that nobody knows: such an entry can't be taken back, for it would take them with it.
void TakingBack::EndEvent() {
  if (!open_) return;
  Step step = std::move(*std::exchange(open_, std::nullopt));
  for (const StepFile& file : step.files) {
    if (file.unread && !file.shared) return;
  }
  std::erase_if(step.files, [this](StepFile& file) {
    if (file.unread) return true;
    int error = kNoError;
    file.after = Bytes(file.path, error);
    return file.after == file.before && file.after.isNull() == file.before.isNull();
  });
  if (step.files.empty()) return;
  step.project = kit_.shared.JobID;
  if (step.screen != nullptr) {
    step.after = step.screen->State();
  } else if (JoinLast(step)) {
    return;
  } else {
    step.what = QStringLiteral("the change of ") + InWords(step.files.front().path).toLower();
  }
  Keep(std::move(step));
}

// What the walk to the next line stores by itself (the height of a room comes back into its file)
// goes back together with the entry before it.
bool TakingBack::JoinLast(const Step& step) {
  if (done_.empty() || done_.back().project != step.project) return false;
  std::vector<StepFile>& files = done_.back().files;
  const auto of = [&](const StepFile& change) {
    return std::find_if(files.begin(), files.end(), [&](const StepFile& file) {
      return file.path == change.path && file.after == change.before;
    });
  };
  for (const StepFile& change : step.files) {
    if (of(change) == files.end()) return false;
  }
  for (const StepFile& change : step.files) of(change)->after = change.after;
  std::erase_if(undone_, [&](const Step& other) { return other.project == step.project; });
  return true;
}

void TakingBack::Keep(Step step) {
  std::erase_if(undone_, [&](const Step& other) { return other.project == step.project; });
  // The text before an entry is the one behind the entry before it: one piece of memory for both.
  for (StepFile& file : step.files) {
    for (auto other = done_.rbegin(); other != done_.rend(); ++other) {
      const auto same =
          std::find_if(other->files.begin(), other->files.end(), [&](const StepFile& earlier) {
            return earlier.path == file.path && earlier.after == file.before;
          });
      if (same == other->files.end()) continue;
      file.before = same->after;
      break;
    }
  }
  done_.push_back(std::move(step));
  qsizetype bytes = 0;
  for (const Step& kept : done_) {
    for (const StepFile& file : kept.files) bytes += file.after.size();
  }
  while (done_.size() > kMostSteps || (bytes > kMostBytes && done_.size() > 1)) {
    for (const StepFile& file : done_.front().files) bytes -= file.after.size();
    done_.pop_front();
  }
}

QString TakingBack::TakeBack() {
  return Move(done_, undone_, true);
}

QString TakingBack::BringBack() {
  return Move(undone_, done_, false);
}

const TakeoffStep* TakingBack::Last() const {
  const auto last = std::find_if(done_.rbegin(), done_.rend(), [&](const Step& step) {
    return step.project == kit_.shared.JobID;
  });
  return last == done_.rend() ? nullptr : &*last;
}

QString TakingBack::LastEntry() const {
  const Step* last = Last();
  return last == nullptr ? QString() : last->what;
}

bool TakingBack::LastWasInArea() const {
  const Step* last = Last();
  if (last == nullptr) return false;
  return std::any_of(last->files.begin(), last->files.end(), [&](const StepFile& file) {
    return file.path.endsWith(QLatin1String(".ato")) ||
           file.path == ProjectFolder(kit_.shared).AreaNames();
  });
}

QString TakingBack::Refusal() const {
  if (!kit_.shared.ReadOnly.isEmpty()) return kit_.shared.ReadOnly;
  if (kit_.shared.Locked == QLatin1String("True"))
    return QStringLiteral("The project is locked, so its entries stay as they are.");
  return {};
}

QString TakingBack::Move(Steps& from, Steps& to, bool back) {
  QString refusal = Refusal();
  if (!refusal.isEmpty()) return refusal;
  const auto found = std::find_if(from.rbegin(), from.rend(), [&](const Step& step) {
    return step.project == kit_.shared.JobID;
  });
  if (found == from.rend())
    return back ? QStringLiteral(
                      "Nothing was entered here since the program began, so there is "
                      "nothing to take back.")
                : QStringLiteral("Nothing was taken back, so there is nothing to bring back.");
  const Step step = *found;
  const QString said =
      back ? QStringLiteral("Not taken back: ") : QStringLiteral("Not brought back: ");
  if (!marks_.Reaches(step.marks))
    return said + step.what +
           QStringLiteral(
               ". It was measured on the plan \"%1\": open that plan first, so that its "
               "mark goes with it.")
               .arg(step.marks.plan);
  const QString problem = StoreAll(step, back);
  if (!problem.isEmpty()) return said + step.what + QStringLiteral(". ") + problem;
  to.push_back(step);
  if (to.size() > kMostSteps) to.pop_front();  // of another project
  from.erase(std::next(found).base());
  marks_.PutOn(step.marks, !back);
  FollowOnScreens(step, back);
  reports_.PrintReport();
  return back ? QStringLiteral("Taken back: %1. Ctrl+Y brings it back.").arg(step.what)
              : QStringLiteral("Brought back: %1.").arg(step.what);
}

// All files of the entry are looked at before one is stored. "" when it is done.
QString TakingBack::StoreAll(const Step& step, bool back) {
  std::vector<const StepFile*> due;
  for (const StepFile& file : step.files) {
    int error = kNoError;
    const QByteArray& left = back ? file.after : file.before;
    const QByteArray now = Bytes(file.path, error);
    if (error != kNoError)
      return InWords(file.path) + QStringLiteral(" can't be read: %1.").arg(ReadReasonText(error));
    if (now == left && now.isNull() == left.isNull()) {
      due.push_back(&file);
    } else if (!file.shared) {
      const QString path = file.path;
      DropOver(path);
      return InWords(path) + QStringLiteral(" was changed elsewhere since, and stays as it is.");
    }
  }
  for (const StepFile* file : due) {
    const QByteArray& wanted = back ? file->before : file->after;
    const int error = Store(file->path, wanted);
    int unread = kNoError;
    if (Bytes(file->path, unread) != wanted)
      return InWords(file->path) + QStringLiteral(" can't be stored: %1.").arg(ReasonText(error));
  }
  return {};
}

// No entry in that file can be taken back or brought back any more.
void TakingBack::DropOver(const QString& path) {
  const auto touches = [path](const Step& step) {
    return std::any_of(step.files.begin(), step.files.end(),
                       [&](const StepFile& file) { return file.path == path; });
  };
  std::erase_if(done_, touches);
  std::erase_if(undone_, touches);
}

void TakingBack::FollowOnScreens(const Step& step, bool back) {
  const SheetState& from = back ? step.after : step.before;
  const SheetState& to = back ? step.before : step.after;
  QStringList paths;
  for (const StepFile& file : step.files) paths += file.path;
  for (SheetScreen* screen : screens_) {
    const SheetState now = screen->State();
    screen->FollowFiles(paths);
    const bool same = screen == step.screen && !now.file.isEmpty() && now.file == from.file &&
                      now.file == to.file && screen->State().file == now.file;
    if (same && now.lines.List() == from.lines.List()) screen->ShowState(Moved(now, from, to));
  }
}

// What stands in the file for this program: a save that waits counts. Null when there is no file.
QByteArray TakingBack::Bytes(const QString& path, int& error) const {
  for (const Files::Pending& save : kit_.files.PendingSaves()) {
    if (save.path.compare(path, Qt::CaseInsensitive) == 0 && !save.save) return save.text.toUtf8();
  }
  QByteArray bytes;
  error = kit_.files.GetDisk().Read(kit_.files.Resolved(path), bytes);
  if (IsMissing(error))
    error = kNoError;
  else if (error == kNoError && bytes.isNull())
    bytes = QByteArrayLiteral("");
  return bytes;
}

int TakingBack::Store(const QString& path, const QByteArray& bytes) {
  if (bytes.isNull()) return kit_.files.Remove(path);
  const QString text = DecodedText(bytes);
  if (text.toUtf8() == bytes) return kit_.files.SaveText(path, text, FileKind::Latest);
  // From an older machine: the bytes are what it wrote.
  return kit_.files.ReplaceFile(path, bytes);
}

}  // namespace tamo
