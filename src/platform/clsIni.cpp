// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "platform/clsIni.h"

#include "platform/Errors.h"
#include "platform/FileTools.h"
#include "platform/Notices.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <optional>

namespace {

const QString DefaultSection = QStringLiteral("Orvani");
const QString DefaultFile = QStringLiteral("GENDAT.INI");

bool Same(const QString &a, const QString &b) { return a.compare(b, Qt::CaseInsensitive) == 0; }

// The file as lines of bytes: what is not changed goes back exactly as it was, also in another encoding.
class IniText {
 public:
  explicit IniText(QByteArray content) {
    if (content.startsWith("\xEF\xBB\xBF")) {
      mark = content.first(3);
      content.remove(0, 3);
    }
    lineEnd = content.contains("\r\n") ? "\r\n" : "\n";
    lines = content.split('\n');
    for (QByteArray &line : lines)
      if (line.endsWith('\r')) line.chop(1);
    if (lines.last().isEmpty()) lines.removeLast();
  }

  std::optional<QString> Value(const QString &section, const QString &key) const {
    const Place place = Find(section, key);
    return place.line < 0 ? std::nullopt : std::optional<QString>(Split(lines[place.line]).second);
  }

  void SetValue(const QString &section, const QString &key, const QString &value) {
    const Place place = Find(section, key);
    if (place.line >= 0) {
      // The key keeps the spelling and the indent that someone gave it.
      const QByteArray &line = lines[place.line];
      lines[place.line] = line.first(line.indexOf('=') + 1) + value.toUtf8();
      return;
    }
    int at = place.afterSection;
    if (at < 0) {
      if (!lines.isEmpty()) lines.append(QByteArray());
      lines.append('[' + section.toUtf8() + ']');
      at = static_cast<int>(lines.size());
    }
    lines.insert(at, key.toUtf8() + '=' + value.toUtf8());
  }

  // Whether a line of it is a section, an entry or a remark, or it is empty.
  bool IsConfiguration() const {
    const bool isEmpty = std::all_of(lines.begin(), lines.end(), [](const QByteArray &line) { return line.trimmed().isEmpty(); });
    const bool isText = std::none_of(lines.begin(), lines.end(), [](const QByteArray &line) { return line.contains('\0'); });
    return isEmpty || (isText && std::any_of(lines.begin(), lines.end(), [](const QByteArray &line) {
                         const QByteArray start = line.trimmed();
                         return start.startsWith(';') || start.startsWith('#') || (start.startsWith('[') && start.contains(']')) ||
                                !Split(line).first.isEmpty();
                       }));
  }

  QByteArray Content() const { return mark + lines.join(lineEnd) + lineEnd; }

 private:
  struct Place {
    int line = -1;          // of the key
    int afterSection = -1;  // behind the last filled line of the first section of that name
  };

  // Key and value of a line; the key is empty for anything that is no entry.
  static std::pair<QString, QString> Split(const QByteArray &line) {
    const auto equals = line.indexOf('=');
    const QByteArray start = line.trimmed();
    if (equals < 0 || start.startsWith(';') || start.startsWith('#') || start.startsWith('[')) return {};
    return {QString::fromUtf8(line.first(equals)).trimmed(), QString::fromUtf8(line.sliced(equals + 1)).trimmed()};
  }

  Place Find(const QString &section, const QString &key) const {
    Place place;
    bool inside = false;
    bool isFirst = true;
    for (int i = 0; i < lines.size(); ++i) {
      const QByteArray line = lines[i].trimmed();
      if (line.startsWith('[') && line.contains(']')) {
        isFirst = isFirst && place.afterSection < 0;
        inside = Same(QString::fromUtf8(line.sliced(1, line.indexOf(']') - 1)).trimmed(), section);
      } else if (inside && Same(Split(lines[i]).first, key)) {
        place.line = i;
        return place;
      }
      if (inside && isFirst && !line.isEmpty()) place.afterSection = i + 1;
    }
    return place;
  }

  QByteArray mark;
  QByteArray lineEnd;
  QByteArrayList lines;
};

}  // namespace

QString clsIni::FilePath(const QString &file) const {
  const QString name = file.isEmpty() ? DefaultFile : file;
  return QDir::isAbsolutePath(name) ? name : paths.Ephe(QStringLiteral("INIFILES/") + name);
}

QString clsIni::GetIniString(const QString &key, const QString &defaultValue, const QString &section, const QString &file) const {
  const QString path = FilePath(file);
  static QSet<QString> told;  // a screen asks for many values, and one word on the file is enough
  QString fault;
  std::optional<QString> value;
  try {
    const IniText text(QFileInfo::exists(path) ? ReadWholeFile(path) : QByteArray());
    if (text.IsConfiguration())
      value = text.Value(section.isEmpty() ? DefaultSection : section, key.trimmed());
    else
      fault = tr("The configuration file \"%1\" is damaged, so the usual choices hold. Please mend it or move it away.");
  } catch (const StoreError &) {
    fault = QFileInfo(path).isDir() ? tr("There is a folder at \"%1\" where the configuration file should be, so the usual choices hold. "
                                         "Please move it away.")
                                    : tr("The configuration file \"%1\" cannot be read, so the usual choices hold. Please give yourself "
                                         "the right to read it.");
  }
  if (fault.isEmpty()) {
    told.remove(path);
  } else if (!told.contains(path)) {
    told.insert(path);
    Notices::Show({Notice::Kind::Warning, QString(), fault.arg(QDir::toNativeSeparators(path))});
  }
  return value.value_or(defaultValue).left(LongestValue);
}

void clsIni::WriteIniString(const QString &key, const QString &value, const QString &section, const QString &file) const {
  const QString name = section.isEmpty() ? DefaultSection : section;
  // Such a key could be written and never be found again.
  const QString first = key.trimmed().left(1);
  if (first.isEmpty() || QStringLiteral(";#[").contains(first) || key.contains(u'=') || key.contains(u'\n') || name.contains(u']') ||
      name.contains(u'\n'))
    throw UsageError(tr("\"%1\" in section \"%2\" cannot name an entry of the configuration file.").arg(key, name));
  QString line = value;
  line.replace(QStringLiteral("\r\n"), QStringLiteral(" ")).replace(u'\n', u' ').replace(u'\r', u' ');

  const QString path = FilePath(file);
  QDir().mkpath(QFileInfo(path).path());
  // Another window writes its own lines: what it wrote since is read first, and nobody writes in between.
  const WriteTurn turn(path, tr("The configuration file \"%1\" is in use by another program. Please close that program and try again.")
                                 .arg(QDir::toNativeSeparators(path)));
  IniText text(QFileInfo(path).isFile() ? ReadWholeFile(path) : QByteArray());
  const bool isDamaged = !text.IsConfiguration();
  if (isDamaged) text = IniText(QByteArray());
  // Nothing to change, and so no reason to ask for a folder that can be written.
  if (!isDamaged && text.Value(name.trimmed(), key.trimmed()) == line.trimmed()) return;
  text.SetValue(name.trimmed(), key.trimmed(), line);
  if (!isDamaged) {
    WriteWholeFile(path, text.Content());
    return;
  }
  const QString aside = SetAside(path);
  try {
    WriteWholeFile(path, text.Content());
  } catch (const StoreError &) {
    QFile::rename(aside, path);
    throw;
  }
  Notices::Show({Notice::Kind::Information, QString(),
                 tr("The damaged configuration file \"%1\" was set aside as \"%2\", and a new one was begun.")
                     .arg(QDir::toNativeSeparators(path), QFileInfo(aside).fileName())});
}
