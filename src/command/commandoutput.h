#pragma once

#include <functional>
#include <memory>

#include "command/command.h"
#include "export/tablefile.h"

namespace tamo {

class CommandData;

// Where the output of a command goes, and what is said when it can't get there.
class CommandOutput {
 public:
  // All of it outlives this.
  CommandOutput(const CommandLine& line, const CommandPlatform& platform, const CommandData& data)
      : line_(line), platform_(platform), data_(data) {}

  // What hinders the output before anything is made; "" for nothing.
  QString Refusal() const;
  // `make` writes into the file or standard output; true when all of it got there. It answers an
  // error number.
  bool Write(const std::function<int(ByteSink&)>& make) const;
  // The file of the table format that was asked for. `title` names it; `head` stands in JSON.
  std::unique_ptr<TableFile> NewTable(ByteSink& sink, const QString& title,
                                      const QList<std::pair<QString, QString>>& head) const;

 private:
  const CommandLine& line_;
  const CommandPlatform& platform_;
  const CommandData& data_;
};

// Lines as a terminal wants them.
int WriteLines(const QStringList& lines, ByteSink& sink);

}  // namespace tamo
