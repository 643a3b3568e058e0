#pragma once

#include <QFile>
#include <QStringList>
#include <QTemporaryDir>
#include <vector>

namespace tamo {

// The table of words that a recogniser of text writes for rows of words, each column 100 points
// wide, each row 20 high, in a picture with 300 dots an inch.
inline QByteArray TableOf(const std::vector<QStringList>& rows) {
  constexpr double kDots = 300 / 72.0;
  QString table = QStringLiteral(
      "level\tpage_num\tblock_num\tpar_num\tline_num\tword_num\tleft\ttop\twidth\theight\tconf\t"
      "text\n1\t1\t0\t0\t0\t0\t0\t0\t2744\t1595\t-1\t\n");
  for (size_t row = 0; row < rows.size(); ++row) {
    for (qsizetype column = 0; column < rows[row].size(); ++column) {
      const QString& word = rows[row][column];
      if (word.isEmpty()) continue;
      table += QStringLiteral("5\t1\t1\t1\t%1\t%2\t%3\t%4\t%5\t30\t91.5\t%6\n")
                   .arg(row + 1)
                   .arg(column + 1)
                   .arg(int((20 + 100 * double(column)) * kDots))
                   .arg(int((20 + 20 * double(row)) * kDots))
                   .arg(int(6 * double(word.size()) * kDots))
                   .arg(word);
    }
  }
  return table.toUtf8();
}

// A program tesseract of our own before all others, as long as this lives; none at all when it gets
// no script. The script finds its folder in $here.
class FakeRecogniser {
 public:
  explicit FakeRecogniser(const QByteArray& script, const QByteArray& table = {})
      : before_(qgetenv("PATH")) {
    if (script.isEmpty()) {
      qputenv("PATH", QFile::encodeName(folder_.path()));
      return;
    }
    Write("table", table);
    Write("tesseract", "#!/bin/sh\nhere=$(dirname \"$0\")\n" + script + "\n");
    QFile::setPermissions(folder_.filePath("tesseract"),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("PATH", QFile::encodeName(folder_.path()) + ":" + before_);
  }
  ~FakeRecogniser() { qputenv("PATH", before_); }
  FakeRecogniser(const FakeRecogniser&) = delete;
  FakeRecogniser& operator=(const FakeRecogniser&) = delete;

  QString Path(const QString& name) const { return folder_.filePath(name); }
  QByteArray Written(const QString& name) const {
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

 private:
  void Write(const QString& name, const QByteArray& text) const {
    QFile file(folder_.filePath(name));
    if (file.open(QIODevice::WriteOnly)) file.write(text);
  }

  const QTemporaryDir folder_;
  const QByteArray before_;
};

}  // namespace tamo
