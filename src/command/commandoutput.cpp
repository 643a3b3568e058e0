#include "command/commandoutput.h"

#include <QFile>
#include <QFileInfo>

#include "command/commandbid.h"
#include "common/failure.h"
#include "export/csvfile.h"
#include "export/jsonfile.h"
#include "export/safefile.h"
#include "export/xlsxfile.h"

namespace tamo {
namespace {

// A device or a pipe of a name of its own: nothing is to be put in its place.
class DeviceSink : public ByteSink {
 public:
  explicit DeviceSink(const QString& path) : file_(path) {
    if (!file_.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) error_ = kNoAccess;
  }
  int Write(const QByteArray& bytes) override {
    if (error_ == kNoError && file_.write(bytes) != bytes.size())
      error_ = file_.error() == QFileDevice::ResourceError ? kDiskFull : kFileOther;
    return error_;
  }

 private:
  QFile file_;
  int error_ = kNoError;
};

bool IsDevice(const QString& path) {
  const QFileInfo file(path);
  return file.exists() && !file.isFile() && !file.isDir();
}

}  // namespace

QString CommandOutput::Refusal() const {
  const bool binary = line_.format == OutputFormat::Xlsx || line_.format == OutputFormat::Pdf;
  if (line_.output.isEmpty() && binary && platform_.outIsTerminal)
    return QStringLiteral("This is no text for a terminal. -o FILE names a file for it.");
  if (!line_.output.isEmpty() && data_.Holds(line_.output))
    return QStringLiteral(
               "%1 lies in the data folder, which holds the program's own files. Choose another "
               "folder.")
        .arg(line_.output);
  return {};
}

bool CommandOutput::Write(const std::function<int(ByteSink&)>& make) const {
  if (line_.output.isEmpty()) {
    const int error = make(platform_.out);
    if (error == kNoError) return true;
    platform_.complain(
        error == kFileOther
            ? QStringLiteral("The output is not complete: what reads it has stopped reading.")
            : QStringLiteral("The output is not complete: %1.").arg(WriteReason(error)));
    return false;
  }
  int error = kNoError;
  if (IsDevice(line_.output)) {
    DeviceSink sink(line_.output);
    error = sink.Write({});
    if (error == kNoError) error = make(sink);
  } else {
    error = MakeFileSafely(platform_.disk, QFileInfo(line_.output).absoluteFilePath(), make);
  }
  if (error == kNoError) return true;
  platform_.complain(QStringLiteral("%1 could not be written, because %2. What was there before is "
                                    "unchanged.")
                         .arg(line_.output, WriteReason(error)));
  return false;
}

std::unique_ptr<TableFile> CommandOutput::NewTable(
    ByteSink& sink, const QString& title, const QList<std::pair<QString, QString>>& head) const {
  if (line_.format == OutputFormat::Csv)
    return std::make_unique<CsvFile>(sink, !line_.output.isEmpty());
  if (line_.format == OutputFormat::Xlsx) return std::make_unique<XlsxFile>(sink, title);
  return std::make_unique<JsonFile>(sink, head);
}

int WriteLines(const QStringList& lines, ByteSink& sink) {
  QByteArray bytes;
  for (const QString& line : lines) bytes += line.toUtf8() + '\n';
  return sink.Write(bytes);
}

}  // namespace tamo
