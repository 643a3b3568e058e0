#include "windows/chosenlook.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QEvent>

#include "program/program.h"

namespace tamo {
namespace {

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString kNamespace = QStringLiteral("org.freedesktop.appearance");
const QString kKey = QStringLiteral("color-scheme");

constexpr int kAskEvery = 5000;  // milliseconds; the answer comes without anybody waiting for it

// The answer is a variant, in older desktops a variant in a variant.
uint SchemeOf(const QVariant& answer) {
  const QVariant inner = answer.value<QDBusVariant>().variant();
  if (inner.canConvert<QDBusVariant>()) return inner.value<QDBusVariant>().variant().toUInt();
  return inner.toUInt();
}

}  // namespace

ChosenLook::ChosenLook(Program& program) : program_(program), desktop_(QApplication::palette()) {
  program_.onLook = [this] { Apply(); };
  Apply();
  qApp->installEventFilter(this);
}

ChosenLook::~ChosenLook() {
  program_.onLook = nullptr;
}

Look ChosenLook::Wanted() const {
  const QString chosen = program_.Look();
  if (chosen == QLatin1String("Light")) return Look::Light();
  if (chosen == QLatin1String("Dark")) return Look::Dark();
  if (scheme_ == 1) return Look::Dark();
  return scheme_ == 2 ? Look::Light() : Look::Of(desktop_);
}

void ChosenLook::Apply() {
  const Look wanted = Wanted();
  applying_ = true;
  ApplyLook(wanted);
  applying_ = false;
}

void ChosenLook::DesktopSaid(uint scheme) {
  if (scheme_ == scheme) return;
  scheme_ = scheme;
  if (program_.Look().isEmpty()) Apply();
}

void ChosenLook::FollowDesktop() {
  if (!QDBusConnection::sessionBus().isConnected()) return;
  AskDesktop();
  connect(&timer_, &QTimer::timeout, this, [this] { AskDesktop(); });
  timer_.start(kAskEvery);
  // Whoever changed it in another program comes back to this one.
  connect(qApp, &QGuiApplication::applicationStateChanged, this, [this] { AskDesktop(); });
}

void ChosenLook::AskDesktop() {
  if (!program_.Look().isEmpty()) return;
  QDBusMessage ask =
      QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Read"));
  ask << kNamespace << kKey;
  auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(ask), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
    const QDBusPendingReply<QDBusVariant> reply = *watcher;
    // A desktop without the setting is not asked again.
    if (reply.isError()) {
      timer_.stop();
    } else {
      DesktopSaid(SchemeOf(reply.argumentAt(0)));
    }
    watcher->deleteLater();
  });
}

// The desktop's palette is asked for by giving up the program's own for a moment.
bool ChosenLook::eventFilter(QObject* object, QEvent* event) {
  if (event->type() != QEvent::ThemeChange || applying_ || !object->isWidgetType()) return false;
  applying_ = true;
  QApplication::setPalette(QPalette());
  desktop_ = QApplication::palette();
  Apply();
  return false;
}

}  // namespace tamo
