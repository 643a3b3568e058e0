#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "common/files.h"
#include "engine/mupdfcontexts.h"
#include "engine/mupdfengine.h"
#include "plans/makepdf.h"
#include "plans/pdfdraw.h"
#include "support/faultdisk.h"

namespace tamo::test {

// A folder with plans and the real viewer on it.
struct PlanFixture : ::testing::Test {
  QTemporaryDir folder;
  FaultDisk disk;
  Files files{disk};
  MuPdfEngine engine;
  std::unique_ptr<PdfDraw> draw = std::make_unique<PdfDraw>(files, engine);

  QString Path(const QString& name) const { return folder.filePath(name); }
  QString Write(const QString& name, const QByteArray& bytes) const {
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return Path(name);
  }
  QByteArray Read(const QString& path) const {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
  }
  void Reopen(const QString& path) {
    draw = std::make_unique<PdfDraw>(files, engine);
    ASSERT_EQ(draw->OpenFile(path, ""), 0) << draw->Problem().toStdString();
  }

  struct Ran {
    bool present = false;
    int exit = -1;
    QByteArray output;
  };
  // Runs another program, when the machine has it. A child confuses the thread sanitizer, which
  // then goes without.
  static Ran Run(const QString& program, const QStringList& arguments) {
    Ran ran;
#ifdef __SANITIZE_THREAD__
    return ran;
#endif
    const QString path = QStandardPaths::findExecutable(program);
    if (path.isEmpty()) return ran;
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(path, arguments);
    ran.present = process.waitForFinished(60000);
    ran.exit = process.exitCode();
    ran.output = process.readAll();
    return ran;
  }
  static void ExpectValid(const QString& path) {
    const Ran ran = Run("qpdf", {"--check", path});
    if (ran.present) {
      EXPECT_EQ(ran.exit, 0) << ran.output.toStdString();
    }
  }
  // The page as pdftoppm paints it at 72 pixels an inch: width, height, then three bytes a pixel.
  QByteArray Painted(const QString& path, int page, int& width, int& height) const {
    width = height = 0;
    const QString out = Path("painted");
    const Ran ran = Run("pdftoppm", {"-cropbox", "-r", "72", "-f", QString::number(page), "-l",
                                     QString::number(page), "-singlefile", path, out});
    if (!ran.present || ran.exit != 0) return {};
    QByteArray bytes = Read(out + ".ppm");
    const QList<QByteArray> head = bytes.left(40).simplified().split(' ');
    width = head.value(1).toInt();
    height = head.value(2).toInt();
    return bytes.right(qsizetype(3) * width * height);
  }
  // Whether any pixel around a place is strongly red (blue and green far below).
  static bool RedNear(const QByteArray& pixels, int width, int height, PagePoint at) {
    for (int y = int(at.y) - 2; y <= int(at.y) + 2; ++y) {
      for (int x = int(at.x) - 2; x <= int(at.x) + 2; ++x) {
        if (x < 0 || y < 0 || x >= width || y >= height) continue;
        const auto* p = reinterpret_cast<const unsigned char*>(pixels.constData()) +
                        3 * (qsizetype(y) * width + x);
        if (p[0] > 150 && p[1] < 120 && p[2] < 120) return true;
      }
    }
    return false;
  }
};

}  // namespace tamo::test
