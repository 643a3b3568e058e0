#include "windows/helptopics.h"

#include "common/desk.h"
#include "docs/docsform.h"
#include "docs/topics.h"
#include "program/program.h"

namespace tamo {

namespace {

// The topic of what is being done: at a field, of a report, in a mode.
QString TopicFor(Program& program, const Form& front) {
  const Control* field = front.ActiveControl();
  const QString name = field == nullptr ? QString() : field->Name();
  if (front.Name() == QLatin1String("Reports")) {
    for (const char* list : {"Reporter", "Reporter1"}) {
      const auto* rows = dynamic_cast<const OrderedList*>(front.Find(QLatin1String(list)));
      if (rows != nullptr && rows->Shown() && !rows->Empty()) return FileOfReport(rows->Row(0));
    }
  }
  const QString* flag = program.FindText(front.Name(), QStringLiteral("Flag"));
  if (front.Name() == QLatin1String("RFSForm") && flag != nullptr &&
      *flag == QLatin1String("Estimate"))
    return QStringLiteral("EstimateRFSDocs.tamo");
  return FileOfField(front.Name(), name);
}

}  // namespace

void ShowHelp(Program& program, Form& front) {
  auto* docs = dynamic_cast<DocsForm*>(program.FindForm(QStringLiteral("Docs")));
  if (docs == nullptr) return;
  program.GetDesk().Dispatch([&] {
    docs->ShowTopic(TopicFor(program, front));
    docs->Show(docs->OwnerForm());
  });
}

}  // namespace tamo
