#include "command/commandline.h"

#include "reports/namedreports.h"

namespace tamo {
namespace {

struct FormatOption {
  const char* option;
  OutputFormat format;
};
constexpr FormatOption kFormats[] = {{"--text", OutputFormat::Text},
                                     {"--csv", OutputFormat::Csv},
                                     {"--xlsx", OutputFormat::Xlsx},
                                     {"--pdf", OutputFormat::Pdf},
                                     {"--json", OutputFormat::Json}};

struct VerbWord {
  const char* word;
  CommandLine::Verb verb;
};
constexpr VerbWord kVerbs[] = {
    {"report", CommandLine::Verb::Report},     {"list", CommandLine::Verb::List},
    {"check", CommandLine::Verb::Check},       {"--help", CommandLine::Verb::Help},
    {"-h", CommandLine::Verb::Help},           {"help", CommandLine::Verb::Help},
    {"--version", CommandLine::Verb::Version}, {"-V", CommandLine::Verb::Version}};

const VerbWord* FindVerb(const QString& word) {
  for (const VerbWord& verb : kVerbs) {
    if (word == QLatin1String(verb.word)) return &verb;
  }
  return nullptr;
}

class Reader {
 public:
  Reader(QStringList arguments, CommandLine& line) : left_(std::move(arguments)), line_(line) {}

  QString Read() {
    while (!left_.isEmpty() && problem_.isEmpty()) Next(left_.takeFirst());
    if (problem_.isEmpty()) Finish();
    return problem_;
  }

 private:
  void Refuse(const QString& problem) {
    if (problem_.isEmpty()) problem_ = problem;
  }

  void Next(const QString& word) {
    if (!onlyWords_ && word == QLatin1String("--")) {
      onlyWords_ = true;
    } else if (!onlyWords_ && word.startsWith(u'-') && word.size() > 1) {
      Option(word);
    } else {
      words_ += word;
    }
  }

  void Option(const QString& word) {
    if (Verb(word) || Format(word)) return;
    if (Valued(word, {QStringLiteral("--data")}, line_.data)) return;
    if (Valued(word, {QStringLiteral("-o"), QStringLiteral("--output")}, line_.output)) return;
    Refuse(QStringLiteral("There is no option %1.").arg(word));
  }

  bool Verb(const QString& word) {
    const VerbWord* verb = FindVerb(word);
    if (verb == nullptr) return false;
    asked_ = true;
    line_.verb = verb->verb;
    return true;
  }

  bool Format(const QString& word) {
    for (const FormatOption& format : kFormats) {
      if (word != QLatin1String(format.option)) continue;
      if (formatted_ && line_.format != format.format)
        Refuse(QStringLiteral("Only one format can be made at a time: %1 came after another.")
                   .arg(word));
      line_.format = format.format;
      formatted_ = true;
      return true;
    }
    return false;
  }

  // --name VALUE or --name=VALUE.
  bool Valued(const QString& word, const QStringList& names, QString& value) {
    for (const QString& name : names) {
      if (word == name && left_.isEmpty()) {
        Refuse(QStringLiteral("Behind %1 something is missing.").arg(name));
      } else if (word == name) {
        value = left_.takeFirst();
      } else if (name.startsWith(QLatin1String("--")) && word.startsWith(name + u'=')) {
        value = word.mid(name.size() + 1);
      } else {
        continue;
      }
      if (value.isEmpty()) Refuse(QStringLiteral("What stands behind %1 is empty.").arg(name));
      return true;
    }
    return false;
  }

  void Finish() {
    if (asked_) return;
    const VerbWord* verb = words_.isEmpty() ? nullptr : FindVerb(words_.takeFirst());
    if (verb == nullptr) return Refuse(QStringLiteral("Say what to do: report, list or check."));
    line_.verb = verb->verb;
    if (line_.verb == CommandLine::Verb::Report) return Report();
    if (line_.verb == CommandLine::Verb::List && !words_.isEmpty())
      return Refuse(QStringLiteral("list takes no %1.").arg(words_.first()));
    if (line_.WantsPdf()) return Refuse(QStringLiteral("Only reports are made as a PDF."));
    line_.projects = words_;
  }

  void Report() {
    if (words_.isEmpty()) return Refuse(QStringLiteral("Say which report, and of which project."));
    line_.report = words_.takeFirst();
    if (FindReport(line_.report) == nullptr) {
      QStringList names;
      for (const NamedReport& report : NamedReports()) names += QLatin1String(report.name);
      return Refuse(QStringLiteral("There is no report \"%1\". The reports are: %2.")
                        .arg(line_.report, names.join(QStringLiteral(", "))));
    }
    if (words_.isEmpty())
      return Refuse(QStringLiteral("Say of which project; \"tamo list\" tells all of them."));
    line_.projects = {words_.takeFirst()};
    if (!words_.isEmpty())
      Refuse(QStringLiteral("A report is of one project; %1 is too much.").arg(words_.first()));
  }

  QStringList left_;
  CommandLine& line_;
  QStringList words_;
  QString problem_;
  bool onlyWords_ = false;
  bool asked_ = false;  // for help or the version
  bool formatted_ = false;
};

}  // namespace

bool IsCommand(const QStringList& arguments) {
  if (arguments.isEmpty()) return false;
  const QString& first = arguments.first();
  for (const char* option : {"--data", "--text", "--csv", "--xlsx", "--pdf", "--json", "-o"}) {
    if (first == QLatin1String(option)) return true;
  }
  return FindVerb(first) != nullptr || first.startsWith(QLatin1String("--data="));
}

QString ReadCommandLine(const QStringList& arguments, CommandLine& line) {
  return Reader(arguments, line).Read();
}

QString CommandHelp() {
  QString help = QStringLiteral(
      "Usage: tamo [PLAN.pdf]\n"
      "       tamo report REPORT PROJECT [--text|--csv|--xlsx|--pdf|--json] [-o FILE]\n"
      "       tamo list [--text|--csv|--xlsx|--json] [-o FILE]\n"
      "       tamo check [PROJECT ...] [--text|--csv|--xlsx|--json] [-o FILE]\n"
      "\n"
      "Without a command the window program starts. The commands need no display, change nothing\n"
      "in the data folder, and may run while the windows have the project open.\n"
      "\n"
      "  report   a report of a project, line for line as its window shows it\n"
      "  list     the projects\n"
      "  check    what can't be read, what is unpriced, what no report counts\n"
      "\n"
      "  --csv, --xlsx, --json   the figures as a table; --pdf   the printed pages\n"
      "  -o, --output FILE       into a file, which is replaced as a whole or not at all\n"
      "  --data FOLDER           another data folder than that of the settings\n"
      "  --help, --version\n"
      "\n"
      "Reports:");
  for (const NamedReport& report : NamedReports())
    help += QStringLiteral("\n  %1 %2")
                .arg(QLatin1String(report.name), -16)
                .arg(QLatin1String(report.title));
  return help + QStringLiteral(
                    "\n\nExit status: 0 all well, 1 done but something was found or not counted, 2 "
                    "the command line\ncan't be understood, 3 no such data folder or project, 4 "
                    "the report can't be made, 5 the output\ncould not be written.\n");
}

}  // namespace tamo
