#include "docs/docsform.h"

#include "common/chain.h"
#include "common/failure.h"
#include "common/paths.h"
#include "docs/topics.h"

namespace tamo {
namespace {

const QString kEnding = QStringLiteral(".tamo");

}  // namespace

DocsForm::DocsForm(const Kit& kit, std::function<void()> returnToShell)
    : Form(kit.desk, QStringLiteral("Docs")), kit_(kit), returnToShell_(std::move(returnToShell)) {
  SetCaption(QStringLiteral("Documentation"));
  for (const Topic& topic : Topics()) MenuList.Add(QLatin1String(topic.row));
  DocText.multiLine = true;
  DocList.takesFocus = false;
  // A click on the row that is selected already shows its topic again.
  MenuList.onSelect = [this] { ChooseTopic(); };
  MenuList.onClick = [this] { ChooseTopic(); };
  OnEnter(Text1, [this] { TakeFileName(); });
  Command2.onClick = [this] { LoadDocs(); };
  Command1.onClick = [this] { SaveDocs(); };
  ExitDocs.onClick = [this] { Leave(); };
}

QString DocsForm::ProgramDocs() const {
  return kit_.shared.zDir + kit_.shared.Separator + QStringLiteral("Docs");
}

QString DocsForm::UserDocs() const {
  return kit_.platform.configFolder + kit_.shared.Separator + QStringLiteral("Docs");
}

void DocsForm::ChooseTopic() {
  const QString file = FileOfTopic(MenuList.Selected());
  if (file.isEmpty()) return;
  fileName_ = file;
  LoadDocs();
  if (fileName_.endsWith(kEnding)) Text1.SetText(fileName_.chopped(kEnding.size()).toLower());
}

void DocsForm::TakeFileName() {
  const QString refusal = NameRefusal(Text1.Text());
  if (!refusal.isEmpty()) {
    kit_.desk.GetMessages().Tell(refusal);
    return;
  }
  fileName_ = Text1.Text() + kEnding;
}

void DocsForm::LoadDocs() {
  DocText.Clear();
  DocList.Clear();
  DocText.Hide();
  DocList.Hide();
  QStringList lines;
  if (!fileName_.isEmpty()) {
    const QString own = UserDocs() + kit_.shared.Separator + fileName_;
    const QString shipped = ProgramDocs() + kit_.shared.Separator + fileName_;
    kit_.files.ReadLines(kit_.files.Exists(own) ? own : shipped, lines);
  }
  QString text;
  for (const QString& line : lines) text += line + QStringLiteral("\r\n");
  DocText.SetText(text);
  DocList.AddAll(lines);
  DocText.Show();
  DocList.Show();
}

QString DocsForm::FolderForSaving() const {
  // A copy of the user's own is read first, so it is also the one that is edited.
  if (kit_.files.Exists(UserDocs() + kit_.shared.Separator + fileName_)) return UserDocs();
  Disk& disk = kit_.files.GetDisk();
  const QString file = kit_.files.Resolved(ProgramDocs() + kit_.shared.Separator + fileName_);
  const bool writable = disk.IsFolder(ProgramDocs()) && disk.CanWrite(ProgramDocs()) &&
                        (!disk.Exists(file) || disk.CanWrite(file));
  return writable ? ProgramDocs() : UserDocs();
}

// The whole text is written as one value, with a line end behind it; a topic that ends in a line
// end shows one empty line more after each save and load. A test holds it.
void DocsForm::SaveDocs() {
  if (fileName_.isEmpty()) {
    kit_.desk.GetMessages().Tell(QStringLiteral(
        "No topic is chosen. Choose a topic, or type a file name and press Enter, then Save."));
    return;
  }
  const QString folder = FolderForSaving();
  if (folder != ProgramDocs()) kit_.files.MakeFolders(folder);
  const QString file = folder + kit_.shared.Separator + fileName_;
  const int error = kit_.files.SaveText(file, DocText.Text() + QStringLiteral("\r\n"));
  if (error == kNoError) return;
  kit_.desk.GetMessages().Tell(
      QStringLiteral("The topic was not saved to %1, because %2. The text is kept and will be "
                     "tried again.")
          .arg(file, ReasonText(error)));
}

void DocsForm::ShowTopic(const QString& file) {
  int row = 0;
  while (row < MenuList.Count() && FileOfTopic(MenuList.Row(row)) != file) ++row;
  MenuList.SetIndex(row < MenuList.Count() ? row : -1);
  if (fileName_ == file && DocText.Shown()) return;
  // A topic beside the list, or one that was left for a file of another name.
  fileName_ = file;
  LoadDocs();
  Text1.SetText(file.chopped(kEnding.size()).toLower());
}

void DocsForm::Leave() {
  Hide();
  returnToShell_();
}

}  // namespace tamo
