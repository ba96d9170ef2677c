// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "platform/SettingKeys.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QHash>
#include <QString>

#include <optional>
#include <utility>
#include <vector>

// The per-user store of settings, by section and key, all values texts. Sections and keys compare without regard to case:
// the chart style is written as "Kundstyle" in one place and read as "KundStyle" in another.
class UserSettings {
 public:
  // A value to be stored.
  struct Change {
    Change(QString ofSection, QString ofKey, QString newValue)
        : section(std::move(ofSection)), key(std::move(ofKey)), value(std::move(newValue)) {}
    Change(const SettingKey &setting, QString newValue)
        : Change(QLatin1String(setting.section), QLatin1String(setting.key), std::move(newValue)) {}
    Change(const SettingKey &setting, int newValue) : Change(setting, QString::number(newValue)) {}

    QString section, key, value;
  };

  virtual ~UserSettings() = default;

  // The stored text, or nothing when the key was never stored.
  virtual std::optional<QString> Stored(const QString &section, const QString &key) const = 0;
  // Stores all of them in one write: the file takes all or none. For this run they hold either way.
  // Throws StoreError when they cannot be kept.
  virtual void SetAll(const std::vector<Change> &changes) = 0;

  // Takes in what other programs have stored since, and tells whether that was anything. Between two calls the values stand still, so that
  // all charts on the screen follow the same ones.
  virtual bool Refresh() { return false; }

  QString Value(const QString &section, const QString &key, const QString &fallback = QString()) const;
  // A text that is no whole number gives the fallback.
  int IntValue(const QString &section, const QString &key, int fallback) const;
  // "True" in any case, "1" and "-1" are true; any other stored text is false.
  bool BoolValue(const QString &section, const QString &key, bool fallback) const;

  QString Value(const SettingKey &key) const;
  int IntValue(const SettingKey &key) const;
  bool BoolValue(const SettingKey &key) const;
  // One alone, as SetAll does.
  void SetValue(const QString &section, const QString &key, const QString &value) { SetAll({{section, key, value}}); }
  void SetValue(const SettingKey &key, const QString &value) { SetAll({{key, value}}); }
  void SetIntValue(const SettingKey &key, int value);
  // Stores "True" or "False".
  void SetBoolValue(const SettingKey &key, bool value);
};

// Settings in a file of the user's configuration folder; each write is on disk when the call returns. Programs that write at the same
// time keep each other's values.
class FileUserSettings : public UserSettings {
  Q_DECLARE_TR_FUNCTIONS(FileUserSettings)

 public:
  // settingsFile: its path; empty for orvani/orvani.conf in the user's configuration folder. One that does not exist holds no settings yet.
  // Throws StoreError when the file is there and cannot be read as settings.
  explicit FileUserSettings(const QString &settingsFile = QString());

  std::optional<QString> Stored(const QString &section, const QString &key) const override;
  void SetAll(const std::vector<Change> &changes) override;
  bool Refresh() override;

  QString Path() const { return PathOf(path); }
  // Where the settings of a constructor's `settingsFile` lie.
  static QString PathOf(const QString &settingsFile);

 private:
  QByteArray Content() const;
  [[noreturn]] void ThrowDamaged() const;
  void TakeIn(const QByteArray &content);

  QString path;
  QByteArray taken;                // what the values were read from
  QHash<QString, QString> values;  // of the whole file, by full key
  QHash<QString, QString> unkept;  // what could not be stored holds for this run
};

// Settings that live as long as the object, for tests.
class MemoryUserSettings : public UserSettings {
 public:
  std::optional<QString> Stored(const QString &section, const QString &key) const override;
  void SetAll(const std::vector<Change> &changes) override;

 private:
  QHash<QString, QString> values;
};

// Reads through to the settings below and keeps writes to itself, so that one run can choose an ayanamsha without changing the user's.
class OverlaySettings : public UserSettings {
 public:
  // `settings` must outlive this object.
  explicit OverlaySettings(const UserSettings &settings) : below(settings) {}

  std::optional<QString> Stored(const QString &section, const QString &key) const override;
  void SetAll(const std::vector<Change> &changes) override;

 private:
  const UserSettings &below;
  MemoryUserSettings above;
};
