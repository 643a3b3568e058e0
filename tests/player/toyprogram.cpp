#include "player/toyprogram.h"

#include "common/numbers.h"

namespace tamo::player {

ToyProgram::ToyProgram(const Platform& platform)
    : desk_(platform.messages),
      files_(platform.disk),
      folder_(platform.homeFolder),
      messages_(platform.messages),
      toy_(desk_, QStringLiteral("Toy")),
      plan_(desk_, QStringLiteral("OST")),
      Name_(toy_, QStringLiteral("Name")),
      Digits_(toy_, QStringLiteral("Digits"), 5),
      Notes_(toy_, QStringLiteral("Notes")),
      Box_(toy_, QStringLiteral("Box")),
      Inside_(toy_, QStringLiteral("Inside")),
      Save_(toy_, QStringLiteral("Save"), QStringLiteral("&Save")),
      Hint_(toy_, QStringLiteral("Hint"), QStringLiteral("Leave blank.")),
      Check_(toy_, QStringLiteral("Check"), QStringLiteral("Check")),
      First_(toy_, QStringLiteral("First"), QStringLiteral("First"), 1),
      Second_(toy_, QStringLiteral("Second"), QStringLiteral("Second"), 1),
      Red_(toy_, QStringLiteral("Red")),
      Rows_(toy_, QStringLiteral("Rows")),
      Ticks_(toy_, QStringLiteral("Ticks")),
      Folder_(toy_, QStringLiteral("Folder"), FileBrowser::Kind::Folder),
      File_(toy_, QStringLiteral("File"), FileBrowser::Kind::File, QStringLiteral("*.txt")),
      Menu_(toy_, QStringLiteral("Menu"), QStringLiteral("&Menu")),
      Ask_(toy_, QStringLiteral("Ask"), QStringLiteral("&Ask"), &Menu_),
      Divide_(toy_, QStringLiteral("Divide"), QStringLiteral("&Divide"), &Menu_),
      Quit_(toy_, QStringLiteral("Quit"), QStringLiteral("&Quit"), &Menu_),
      Gone_(toy_, QStringLiteral("Gone"), QStringLiteral("&Gone"), &Menu_),
      picPdfDraw_(plan_, QStringLiteral("picPdfDraw")) {
  toy_.SetCaption(QStringLiteral("A toy"));
  Notes_.multiLine = true;
  Inside_.PutInto(Box_);
  Gone_.Hide();
  Hint_.SetHover(QStringLiteral("Blank means none."));
  Red_.SetColour(QStringLiteral("255000000"));
  Red_.SetWidth(3);
  Rows_.SetRows({QStringLiteral("one"), QStringLiteral(" two "), QStringLiteral("thr^ee")});
  Ticks_.SetRows({QStringLiteral("a"), QStringLiteral("b")});
  Name_.onKey = [this](Key& key) {
    if (!key.IsEnter()) return;
    key.Drop();
    desk_.Focus(Digits_);
  };
  Digits_.onGotFocus = [this] { Digits_.SelectAll(); };
  Digits_.onKey = [](Key& key) {
    if (key.Is(Key::Name::Character) && !key.character.isDigit()) key.Drop();
  };
  Save_.onClick = [this] {
    files_.SaveText(folder_ + QStringLiteral("/toy.txt"),
                    Name_.Text() + QStringLiteral("\r\n") + Digits_.Text());
  };
  Ask_.onClick = [this] {
    Hint_.SetCaption(messages_.Ask(QStringLiteral("Really?\r\nAll of it?")) ? QStringLiteral("yes")
                                                                            : QStringLiteral("no"));
  };
  Divide_.onClick = [] { Divided(1, 0, QStringLiteral("The toy divides by zero.")); };
  picPdfDraw_.takesFocus = true;
  viewer_.onMousePressed = [this] { desk_.Focus(picPdfDraw_); };
  Quit_.onClick = [this] { toy_.Hide(); };
  Box_.Hide();
}

void ToyProgram::Start() {
  plan_.Show();
  toy_.Show();
}

const QString* ToyProgram::FindText(const QString& form, const QString& name) {
  return form == QStringLiteral("Form11") && name == QStringLiteral("IAmHere") ? &secret_ : nullptr;
}

}  // namespace tamo::player
