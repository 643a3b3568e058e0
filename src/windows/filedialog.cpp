#include "windows/filedialog.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QSettings>

namespace tamo {
namespace {

const QString kFolder = QStringLiteral("files/folder");

// What was saved last of a dialog of this title.
QString FilterKey(const FileQuestion& question) {
  return QStringLiteral("files/") + QString(question.title).remove(QLatin1Char(' '));
}

}  // namespace

QString EndingOfFilter(const QString& filter) {
  return filter.section(QStringLiteral("*."), 1, 1)
      .section(QLatin1Char(' '), 0, 0)
      .remove(QLatin1Char(')'));
}

QString FileDialog::Kept(const QString& key) const {
  return file_.isEmpty() ? QString() : QSettings(file_, QSettings::IniFormat).value(key).toString();
}

void FileDialog::Keep(const QString& key, const QString& text) {
  if (!file_.isEmpty()) QSettings(file_, QSettings::IniFormat).setValue(key, text);
}

QString FileDialog::Choose(const FileQuestion& question) {
  if (beforeDialog) beforeDialog();
  if (folder_.isEmpty()) folder_ = Kept(kFolder);
  if (folder_.isEmpty() || !QFileInfo(folder_).isDir()) folder_ = QDir::homePath();
  QFileDialog dialog(QApplication::activeWindow(), question.title, folder_);
  dialog.setAcceptMode(question.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(question.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  // Whoever saves asks once, in the program's own words.
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  dialog.setNameFilters(question.filters);
  const QString last = Kept(FilterKey(question));
  if (question.filters.contains(last)) dialog.selectNameFilter(last);
  dialog.setDefaultSuffix(EndingOfFilter(dialog.selectedNameFilter()));
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                   [&dialog](const QString& one) { dialog.setDefaultSuffix(EndingOfFilter(one)); });
  if (question.save) dialog.selectFile(question.name);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  const QString path = dialog.selectedFiles().first();
  folder_ = QFileInfo(path).absolutePath();
  Keep(kFolder, folder_);
  Keep(FilterKey(question), dialog.selectedNameFilter());
  return QDir::toNativeSeparators(path);
}

}  // namespace tamo
