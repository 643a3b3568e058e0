#pragma once

#include <functional>

#include "common/form.h"
#include "common/kit.h"

namespace tamo {

// The built-in help: the list of topics, and the text of the chosen one, which can be edited and
// saved. Topics are text files in the folder Docs of the program; a user who may not write there
// has the edited ones in a folder Docs of their own, which is looked at first.
class DocsForm : public Form {
 public:
  // `returnToShell` is where the reader goes who leaves: the main form in mode 1, OST in mode 2.
  DocsForm(const Kit& kit, std::function<void()> returnToShell);

  // Shows the topic of the file name in work; a topic without a file is empty.
  void LoadDocs();
  void SaveDocs();
  // Shows a topic by its file, and selects its row where it has one.
  void ShowTopic(const QString& file);

  MenuEntry ExitDocs{*this, "ExitDocs", "  &Exit Docs"};
  OrderedList MenuList{*this, "MenuList"};
  TextField Text1{*this, "Text1"};
  Button Command2{*this, "Command2", "Load"};
  Button Command1{*this, "Command1", "Save"};
  TextField DocText{*this, "DocText"};
  OrderedList DocList{*this, "DocList"};

 private:
  void ChooseTopic();
  void TakeFileName();
  void Leave();
  QString ProgramDocs() const;
  QString UserDocs() const;
  // The folder in which the file can be written.
  QString FolderForSaving() const;

  const Kit kit_;
  const std::function<void()> returnToShell_;
  QString fileName_;  // the topic in work, with its ".tamo"
};

}  // namespace tamo
