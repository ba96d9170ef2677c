// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "platform/gui/DesktopScheme.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QPalette>

namespace {

constexpr int LongestWait = 200;  // milliseconds for both questions

QVariant Unwrapped(QVariant value) {
  while (value.userType() == qMetaTypeId<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
  return value;
}

// Where no bus runs the library would start one.
bool HasBus() {
  return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ||
         QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
}

QVariant Read(const char *key, int timeout) {
  if (timeout <= 0 || !HasBus()) return {};
  const QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return {};
  QDBusMessage question =
      QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.portal.Desktop"), QStringLiteral("/org/freedesktop/portal/desktop"),
                                     QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("Read"));
  question << QStringLiteral("org.freedesktop.appearance") << QLatin1String(key);
  const QDBusMessage answer = bus.call(question, QDBus::Block, timeout);
  return answer.type() == QDBusMessage::ReplyMessage && !answer.arguments().isEmpty() ? answer.arguments().first() : QVariant();
}

}  // namespace

DesktopScheme DesktopScheme::Ask(const QPalette &palette) {
  QElapsedTimer timer;
  timer.start();
  const QVariant colourScheme = Read("color-scheme", LongestWait);
  // A service that does not know the one does not know the other either.
  const QVariant contrast = colourScheme.isValid() ? Read("contrast", LongestWait - static_cast<int>(timer.elapsed())) : QVariant();
  return From(colourScheme, contrast, palette);
}

DesktopScheme DesktopScheme::From(const QVariant &colourScheme, const QVariant &contrast, const QPalette &palette) {
  const uint wanted = Unwrapped(colourScheme).toUInt();
  DesktopScheme scheme;
  scheme.dark = wanted == 1 || (wanted != 2 && palette.color(QPalette::Window).lightness() < 128);
  scheme.highContrast = Unwrapped(contrast).toUInt() == 1;
  return scheme;
}
