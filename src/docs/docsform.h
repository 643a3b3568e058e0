#pragma once

#include "common/form.h"
#include "common/kit.h"
#include "docs/docshell.h"

namespace tamo {

// The built-in help: the list of topics, and the text of the chosen one, which can be edited and
// saved. Topics are text files in the folder Docs of the program; a user who may not write there
// has the edited ones in a folder Docs of their own, which is looked at first.
class DocsForm : public Form {
 public:
  DocsForm(const Kit& kit, DocShell& shell);

  // Shows the topic of the file name in work; a topic without a file is empty.
  void LoadDocs();
  void SaveDocs();
  // Selects and shows the topic that explains `form` ("Pricing", "RFSForm", ...).
  void ShowTopicOf(const QString& form);

  MenuEntry ExitDocs;
  OrderedList MenuList;
  TextField Text1;
  Button Command2, Command1;
  TextField DocText;
  OrderedList DocList;

 private:
  void ChooseTopic();
  void TakeFileName();
  void Leave();
  QString ProgramDocs() const;
  QString UserDocs() const;
  // The folder in which the file can be written.
  QString FolderForSaving() const;

  const Kit kit_;
  DocShell& shell_;
  QString fileName_;  // the topic in work, with its ".tamo"
};

}  // namespace tamo
