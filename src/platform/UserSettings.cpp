// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "platform/UserSettings.h"

#include "platform/Errors.h"
#include "platform/FileTools.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

namespace {

constexpr qint64 RoomForOneValue = 4096;
constexpr qint64 MostBytesOfALetter = 8;  // as the file writes it, with its escapes

bool IsTrue(const QString &text) {
  const QString plain = text.trimmed();
  return plain.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0 || plain == QLatin1String("1") || plain == QLatin1String("-1");
}

// The spelling under which the name is already stored, so that it stays one entry.
QString StoredSpelling(const QStringList &names, const QString &name) {
  for (const QString &stored : names)
    if (stored.compare(name, Qt::CaseInsensitive) == 0) return stored;
  return name;
}

// Whether the file can hold settings: it is empty, or a line of it is a section, an entry or a remark.
bool LooksLikeSettings(const QByteArray &content) {
  if (content.trimmed().isEmpty()) return true;
  if (content.contains('\0')) return false;
  const QList<QByteArray> lines = content.split('\n');
  return std::any_of(lines.begin(), lines.end(), [](const QByteArray &line) {
    const QByteArray text = line.trimmed();
    return text.startsWith(';') || (text.startsWith('[') && text.endsWith(']')) || text.indexOf('=') > 0;
  });
}

}  // namespace

QString UserSettings::Value(const QString &section, const QString &key, const QString &fallback) const {
  return Stored(section, key).value_or(fallback);
}

int UserSettings::IntValue(const QString &section, const QString &key, int fallback) const {
  bool isNumber = false;
  const int number = Value(section, key).trimmed().toInt(&isNumber);
  return isNumber ? number : fallback;
}

bool UserSettings::BoolValue(const QString &section, const QString &key, bool fallback) const {
  const std::optional<QString> stored = Stored(section, key);
  return stored ? IsTrue(*stored) : fallback;
}

QString UserSettings::Value(const SettingKey &key) const {
  return Value(QLatin1String(key.section), QLatin1String(key.key), QLatin1String(key.fallback));
}

int UserSettings::IntValue(const SettingKey &key) const {
  return IntValue(QLatin1String(key.section), QLatin1String(key.key), QString(QLatin1String(key.fallback)).toInt());
}

bool UserSettings::BoolValue(const SettingKey &key) const {
  return BoolValue(QLatin1String(key.section), QLatin1String(key.key), IsTrue(QLatin1String(key.fallback)));
}

void UserSettings::SetIntValue(const SettingKey &key, int value) { SetValue(key, QString::number(value)); }

void UserSettings::SetBoolValue(const SettingKey &key, bool value) {
  SetValue(key, value ? QStringLiteral("True") : QStringLiteral("False"));
}

FileUserSettings::FileUserSettings(const QString &settingsFile)
    : path(settingsFile), file(std::make_unique<QSettings>(PathOf(settingsFile), QSettings::IniFormat)) {
  CheckReadable();
  TakeIn();
}

FileUserSettings::~FileUserSettings() = default;

QString FileUserSettings::PathOf(const QString &settingsFile) {
  return settingsFile.isEmpty()
             ? QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/orvani/orvani.conf")
             : settingsFile;
}

// Without this a file that cannot be read would count as an empty one, and the chart of another ayanamsha would be shown unasked.
void FileUserSettings::CheckReadable() const {
  const QFileInfo info(Path());
  if (!info.exists()) return;
  QFile opened(Path());
  if (!info.isFile() || !opened.open(QIODevice::ReadOnly) || file->status() == QSettings::AccessError) {
    throw StoreError(
        tr("The settings file \"%1\" cannot be read. Please allow reading it, or move it away to start with the usual settings.")
            .arg(Path()),
        info.isFile() ? StoreError::Kind::Unreadable : StoreError::Kind::NotAFile);
  }
  if (file->status() != QSettings::NoError || !LooksLikeSettings(opened.readAll())) {
    throw StoreError(
        tr("The settings file \"%1\" is damaged. Please mend it, or move it away to start with the usual settings.").arg(Path()),
        StoreError::Kind::Damaged);
  }
}

QString FileUserSettings::FullKey(const QString &section, const QString &key) const {
  const QString storedSection = StoredSpelling(file->childGroups(), section);
  file->beginGroup(storedSection);
  const QString storedKey = StoredSpelling(file->childKeys(), key);
  file->endGroup();
  return storedSection + u'/' + storedKey;
}

void FileUserSettings::TakeIn() {
  values.clear();
  const QStringList keys = file->allKeys();
  for (const QString &key : keys) {
    const QVariant value = file->value(key);
    // A comma in a hand-written value makes the reader see a list.
    values.insert(key.toLower(),
                  value.typeId() == QMetaType::QStringList ? value.toStringList().join(QStringLiteral(", ")) : value.toString());
  }
}

bool FileUserSettings::Refresh() {
  file->sync();
  const QHash<QString, QString> before = std::exchange(values, {});
  TakeIn();
  return values != before;
}

std::optional<QString> FileUserSettings::Stored(const QString &section, const QString &key) const {
  const auto found = values.constFind((section + u'/' + key).toLower());
  return found == values.constEnd() ? std::nullopt : std::optional<QString>(*found);
}

void FileUserSettings::SetAll(const std::vector<Change> &changes) {
  qint64 room = QFileInfo(Path()).size();
  for (const Change &change : changes) {
    values.insert((change.section + u'/' + change.key).toLower(), change.value);  // what cannot be kept holds for this run all the same
    room += RoomForOneValue + change.value.size() * MostBytesOfALetter;
  }
  CheckRoom(Path(), room);  // the library would leave an empty file on a full disk
  file->sync();             // another program's spelling of the key is kept, and so are its values
  for (const Change &change : changes) file->setValue(FullKey(change.section, change.key), change.value);
  file->sync();
  if (file->status() == QSettings::AccessError) {
    throw StoreError(tr("The settings file \"%1\" cannot be written. Please allow writing to the file and its folder, and check that the "
                        "disk is not full.")
                         .arg(Path()),
                     StoreError::Kind::ReadOnly);
  }
}

namespace {

QString MemoryKey(const QString &section, const QString &key) { return section.toLower() + u'\n' + key.toLower(); }

}  // namespace

std::optional<QString> MemoryUserSettings::Stored(const QString &section, const QString &key) const {
  const auto found = values.constFind(MemoryKey(section, key));
  return found == values.constEnd() ? std::nullopt : std::optional<QString>(*found);
}

void MemoryUserSettings::SetAll(const std::vector<Change> &changes) {
  for (const Change &change : changes) values.insert(MemoryKey(change.section, change.key), change.value);
}

std::optional<QString> OverlaySettings::Stored(const QString &section, const QString &key) const {
  const std::optional<QString> own = above.Stored(section, key);
  return own ? own : below.Stored(section, key);
}

void OverlaySettings::SetAll(const std::vector<Change> &changes) { above.SetAll(changes); }
