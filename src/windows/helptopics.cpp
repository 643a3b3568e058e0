#include "windows/helptopics.h"

#include "common/desk.h"
#include "docs/docsform.h"
#include "program/program.h"

namespace tamo {

void ShowHelp(Program& program, Form& front) {
  auto* docs = dynamic_cast<DocsForm*>(program.FindForm(QStringLiteral("Docs")));
  if (docs == nullptr) return;
  program.GetDesk().Dispatch([&] {
    docs->ShowTopicOf(front.Name());
    docs->Show(docs->OwnerForm());
  });
}

}  // namespace tamo
