#include "windows/qtservices.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>

#include "windows/look.h"

namespace tamo {
namespace {

QMessageBox::StandardButton ShowBox(const QString& text, QMessageBox::Icon icon,
                                    QMessageBox::StandardButtons buttons) {
  QMessageBox box(icon, QStringLiteral("Tamo"), text, buttons, QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse);
  if (buttons.testFlag(QMessageBox::No)) {
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
  }
  return static_cast<QMessageBox::StandardButton>(box.exec());
}

}  // namespace

void BoxMessages::Tell(const QString& text) {
  if (beforeBox) beforeBox();
  ShowBox(text, QMessageBox::Information, QMessageBox::Ok);
}

bool BoxMessages::Ask(const QString& text) {
  if (beforeBox) beforeBox();
  return ShowBox(text, QMessageBox::Question, QMessageBox::Yes | QMessageBox::No) ==
         QMessageBox::Yes;
}

void DeskClipboard::Clear() {
  QApplication::clipboard()->clear();
}

void DeskClipboard::SetText(const QString& text) {
  QApplication::clipboard()->setText(text);
}

QIcon ProgramIcon(const QString& programFolder) {
  QIcon icon;
  for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
    icon.addFile(QStringLiteral("%1/desktop/icons/tamo-%2.png").arg(programFolder).arg(size),
                 QSize(size, size));
  }
  return icon;
}

}  // namespace tamo
