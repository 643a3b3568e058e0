#pragma once

#include <QString>
#include <QStringList>

namespace tamo {

enum class OutputFormat { Text, Csv, Xlsx, Pdf, Json };

// What a command line asks for.
struct CommandLine {
  enum class Verb { Help, Version, Report, List, Check };
  Verb verb = Verb::Help;
  QString report;        // its name
  QStringList projects;  // their ids: one for a report, any number for a check
  OutputFormat format = OutputFormat::Text;
  QString output;  // a file; "" for standard output
  QString data;    // the data folder; "" for that of the settings

  bool WantsPdf() const { return format == OutputFormat::Pdf; }
};

// Whether these arguments (without the program's name) ask for a command. Otherwise they are a plan
// to open, or the toolkit's own.
bool IsCommand(const QStringList& arguments);

// What is wrong with the arguments, in words; "" when nothing is.
QString ReadCommandLine(const QStringList& arguments, CommandLine& line);

// What --help prints.
QString CommandHelp();

}  // namespace tamo
