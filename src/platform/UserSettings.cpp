// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "platform/UserSettings.h"

#include "platform/Errors.h"
#include "platform/FileTools.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>
#include <optional>

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

// A comma in a hand-written value makes the reader see a list.
QString TextOf(const QVariant &value) {
  return value.typeId() == QMetaType::QStringList ? value.toStringList().join(QStringLiteral(", ")) : value.toString();
}

QString ValueKey(const QString &section, const QString &key) { return (section + u'/' + key).toLower(); }

// A file that was written by hand can have an entry in several spellings; all of them take the value, whichever is read.
void Store(QSettings &file, const UserSettings::Change &change) {
  const QString wanted = ValueKey(change.section, change.key);
  bool isStored = false;
  const QStringList keys = file.allKeys();
  for (const QString &key : keys) {
    if (key.toLower() != wanted) continue;
    file.setValue(key, change.value);
    isStored = true;
  }
  if (!isStored) file.setValue(StoredSpelling(file.childGroups(), change.section) + u'/' + change.key, change.value);
}

// A text of settings for the library that knows their form, under a path of its own: the library keeps what it has read of a path and
// notes the file's size and time only after the reading, so that it can miss what another program writes in between, and undo it.
class SettingsCopy {
 public:
  // Stands in the temporary folder, or else beside the settings file.
  // Throws StoreError when neither takes it.
  SettingsCopy(const QByteArray &text, const QString &settingsFile) : path(settingsFile) {
    const QString name = QStringLiteral("/orvani-XXXXXX");
    for (const QString &place : {QDir::tempPath(), QFileInfo(path).path()}) {
      folder = std::make_unique<QTemporaryDir>(place + name);
      QFile copy(folder->filePath(QStringLiteral("orvani.conf")));
      if (!folder->isValid() || !copy.open(QIODevice::WriteOnly) || copy.write(text) != text.size() || !copy.flush()) continue;
      file.emplace(copy.fileName(), QSettings::IniFormat);
      return;
    }
    ThrowNoRoom();
  }

  QSettings &File() { return *file; }

  // The text with the changes.
  // Throws StoreError when there is no room for that many bytes.
  QByteArray Text(qint64 mostBytes) {
    try {
      CheckRoom(file->fileName(), mostBytes);  // the library would leave an empty file on a full disk
      file->sync();
      const QByteArray text = ReadWholeFile(file->fileName());
      // A line that is no entry makes a fault of form, now that every line is read; the reading has passed it.
      if (file->status() != QSettings::AccessError && !text.trimmed().isEmpty()) return text;
    } catch (const StoreError &) {
      // Told below, by the name that the user knows.
    }
    ThrowNoRoom();
  }

 private:
  [[noreturn]] void ThrowNoRoom() const {
    throw StoreError(FileUserSettings::tr("There is no room for a copy of the settings file \"%1\", so it stays as it is. Please make room "
                                          "in \"%2\", and allow writing there.")
                         .arg(path, QDir::toNativeSeparators(QDir::tempPath())),
                     StoreError::Kind::NoSpace);
  }

  QString path;
  std::unique_ptr<QTemporaryDir> folder;
  std::optional<QSettings> file;
};

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

FileUserSettings::FileUserSettings(const QString &settingsFile) : path(settingsFile) { TakeIn(Content()); }

QString FileUserSettings::PathOf(const QString &settingsFile) {
  return settingsFile.isEmpty()
             ? QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/orvani/orvani.conf")
             : settingsFile;
}

void FileUserSettings::ThrowDamaged() const {
  throw StoreError(tr("The settings file \"%1\" is damaged. Please mend it, or move it away to start with the usual settings.").arg(Path()),
                   StoreError::Kind::Damaged);
}

// Without this a file that cannot be read would count as an empty one, and the chart of another ayanamsha would be shown unasked.
QByteArray FileUserSettings::Content() const {
  const QFileInfo info(Path());
  if (!info.exists()) return {};
  QFile file(Path());
  const StoreError unreadable(
      tr("The settings file \"%1\" cannot be read. Please allow reading it, or move it away to start with the usual settings.").arg(Path()),
      info.isFile() ? StoreError::Kind::Unreadable : StoreError::Kind::NotAFile);
  if (!info.isFile() || !file.open(QIODevice::ReadOnly)) throw unreadable;
  const QByteArray content = file.readAll();
  if (file.error() != QFileDevice::NoError) throw unreadable;
  if (!LooksLikeSettings(content)) ThrowDamaged();
  return content;
}

void FileUserSettings::TakeIn(const QByteArray &content) {
  std::optional<SettingsCopy> copy;
  std::optional<QSettings> original;
  try {
    copy.emplace(content, Path());
  } catch (const StoreError &) {
    original.emplace(Path(), QSettings::IniFormat);  // a full disk keeps nobody from the usual day; a write will be refused
  }
  QSettings &file = copy ? copy->File() : *original;
  if (file.status() != QSettings::NoError) ThrowDamaged();
  values.clear();
  const QStringList keys = file.allKeys();
  for (const QString &key : keys) values.insert(key.toLower(), TextOf(file.value(key)));
  for (auto own = unkept.cbegin(); own != unkept.cend(); ++own) values.insert(own.key(), own.value());
  taken = content;
}

bool FileUserSettings::Refresh() {
  try {
    const QByteArray content = Content();
    if (content == taken) return false;
    const QHash<QString, QString> before = values;
    TakeIn(content);
    return values != before;
  } catch (const StoreError &) {
    return false;  // a day on the screen keeps its ayanamsha; the next start tells the fault
  }
}

std::optional<QString> FileUserSettings::Stored(const QString &section, const QString &key) const {
  const auto found = values.constFind(ValueKey(section, key));
  return found == values.constEnd() ? std::nullopt : std::optional<QString>(*found);
}

void FileUserSettings::SetAll(const std::vector<Change> &changes) {
  for (const Change &change : changes) unkept.insert(ValueKey(change.section, change.key), change.value);
  values.insert(unkept);
  QDir().mkpath(QFileInfo(Path()).path());
  // What another program stored since is read first, and nobody writes in between.
  const WriteTurn turn(Path(),
                       tr("The settings file \"%1\" is in use by another program. Please close that program and try again.").arg(Path()));
  const QByteArray before = Content();
  SettingsCopy copy(before, Path());
  if (copy.File().status() != QSettings::NoError) ThrowDamaged();
  qint64 room = before.size();
  // Whatever else a hand-written value looks like, it goes back as the text that it was read as.
  const QStringList keys = copy.File().allKeys();
  for (const QString &key : keys) {
    const QVariant value = copy.File().value(key);
    if (!value.isValid() || value.typeId() == QMetaType::QString) continue;  // a key with an empty part is not found by its name
    copy.File().setValue(key, TextOf(value));
    room += RoomForOneValue + TextOf(value).size() * MostBytesOfALetter;
  }
  for (const Change &change : changes) {
    Store(copy.File(), change);
    room += RoomForOneValue + change.value.size() * MostBytesOfALetter;
  }
  WriteWholeFile(Path(), copy.Text(room));
  for (const Change &change : changes) unkept.remove(ValueKey(change.section, change.key));
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
