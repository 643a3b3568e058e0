#pragma once

#include "common/desk.h"
#include "common/form.h"
#include "plans/pdfdraw.h"
#include "player/played.h"
#include "support/fakeplanengine.h"

namespace tamo::player {

// A small program with every kind of control, to test the player itself.
class ToyProgram : public Played {
 public:
  explicit ToyProgram(const Platform& platform);

  void Start() override;
  Desk& GetDesk() override { return desk_; }
  Form* FindForm(const QString& name) override { return desk_.Find(name); }
  const QString* FindText(const QString& form, const QString& name) override;
  PdfDraw& Viewer() override { return viewer_; }
  QString Notice() override { return files_.Notice(); }
  void TrySavesAgain() override { files_.TryAgain(); }
  void Tick() override {}
  bool Running() override { return toy_.Visible(); }
  Form* Shell() override { return &toy_; }

 private:
  Desk desk_;
  Files files_;
  test::FakePlanEngine engine_;
  PdfDraw viewer_{files_, engine_};
  QString secret_ = QStringLiteral("RL");
  QString folder_;
  Messages& messages_;

  Form toy_;
  Form plan_;
  TextField Name_;
  TextField Digits_;
  TextField Notes_;
  Frame Box_;
  TextField Inside_;
  Button Save_;
  Label Hint_;
  CheckBox Check_;
  Option First_;
  Option Second_;
  Swatch Red_;
  OrderedList Rows_;
  CheckList Ticks_;
  FileBrowser Folder_;
  FileBrowser File_;
  MenuEntry Menu_;
  MenuEntry Ask_;
  MenuEntry Divide_;
  MenuEntry Quit_;
  MenuEntry Gone_;
  Label picPdfDraw_;
};

}  // namespace tamo::player
