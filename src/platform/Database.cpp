// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "platform/Database.h"

#include "platform/Recordset.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSqlError>
#include <QSqlQuery>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <atomic>
#include <utility>

namespace {

constexpr QByteArrayView Magic("SQLite format 3\0", 16);
constexpr qint64 HeadSize = 100;

// The store engine's result codes that the user can do something about.
enum Result { Busy = 5, Locked = 6, ReadOnly = 8, InputOutput = 10, Corrupt = 11, Full = 13, CannotOpen = 14, NotADatabase = 26 };
constexpr int Replaced = 1032;  // of the extended codes: another file bears the name now

std::atomic<int> busyTimeoutMs{2000};

using Kind = StoreError::Kind;

struct Wording {
  Kind kind;
  const char *sentence;
};

// One sentence for each way in which a store can refuse; %1 is its path.
constexpr std::array Wordings{
    Wording{Kind::Missing,
            QT_TRANSLATE_NOOP("Database", "The data file \"%1\" is missing. Please put it back, or install the program again.")},
    Wording{Kind::NotAFile,
            QT_TRANSLATE_NOOP("Database",
                              "There is a folder or a device at \"%1\" where a data file should be. Please move it away and "
                              "put the data file there, or install the program again.")},
    Wording{Kind::Unreadable,
            QT_TRANSLATE_NOOP("Database",
                              "The data file \"%1\" cannot be read with your user account. Please give yourself the right to read it.")},
    Wording{Kind::ReadOnly,
            QT_TRANSLATE_NOOP("Database",
                              "The data file \"%1\" is read-only, so nothing can be saved in it. Please allow writing to the "
                              "file and its folder.")},
    Wording{Kind::Locked,
            QT_TRANSLATE_NOOP("Database", "The data file \"%1\" is in use by another program. Please close that program and try again.")},
    Wording{Kind::Foreign,
            QT_TRANSLATE_NOOP("Database",
                              "The file \"%1\" is not a data file of this program, and it was left as it is. Please move it away "
                              "and put the right file there.")},
    Wording{Kind::Damaged,
            QT_TRANSLATE_NOOP("Database",
                              "The data file \"%1\" is damaged, and it was left as it is. Please put a sound copy of it in its place, or "
                              "move it away and install the program again.")},
    Wording{Kind::NewerVersion, QT_TRANSLATE_NOOP("Database",
                                                  "The data file \"%1\" was made by a newer version of this program. Please install that "
                                                  "version, or put back a copy from before.")},
    Wording{Kind::NoSpace,
            QT_TRANSLATE_NOOP("Database",
                              "The data file \"%1\" cannot be written because the disk is full or fails. Please make room on the "
                              "disk and try again; nothing was changed.")},
};

StoreError Worded(Kind kind, const QString &path) {
  const auto wording = std::find_if(Wordings.begin(), Wordings.end(), [kind](const Wording &entry) { return entry.kind == kind; });
  Q_ASSERT(wording != Wordings.end());
  return StoreError(QCoreApplication::translate("Database", wording->sentence).arg(QDir::toNativeSeparators(path)), kind);
}

// Cases of a kind that are told in words of their own.
StoreError Told(Kind kind, const char *sentence, const QStringList &values) {
  QString text = QCoreApplication::translate("Database", sentence);
  for (const QString &value : values) text = text.arg(QDir::toNativeSeparators(value));
  return StoreError(text, kind);
}

// A file that has lost its end is told as such: a copy that was cut off is often still lying elsewhere whole.
StoreError Damage(const QString &path) {
  QFile file(path);
  const QByteArray head = file.open(QIODevice::ReadOnly) ? file.read(HeadSize) : QByteArray();
  if (head.size() == HeadSize) {
    const auto number = qFromBigEndian<quint16>(head.constData() + 16);
    const qint64 pageSize = number == 1 ? 65536 : number;
    const qint64 size = pageSize * qFromBigEndian<quint32>(head.constData() + 28);
    if (size > file.size() && pageSize >= 512) {
      return Told(Kind::Damaged,
                  QT_TRANSLATE_NOOP("Database",
                                    "The data file \"%1\" is cut short: %2 of its %3 bytes are there. It was left as it is; please put a "
                                    "sound copy of it in its place, or move it away and install the program again."),
                  {path, QString::number(file.size()), QString::number(size)});
    }
  }
  return Worded(Kind::Damaged, path);
}

// Everything that can be told before the store engine sees the file. It would make a missing file anew, wait on a pipe,
// and take an empty file for an empty store.
void CheckFile(const QString &path, Database::Mode mode) {
  const QFileInfo info(path);
  if (!info.exists() && info.isSymbolicLink()) {
    throw Told(Kind::Missing,
               QT_TRANSLATE_NOOP("Database",
                                 "The data file \"%1\" is a link to \"%2\", and nothing is there. Please connect the drive that holds the "
                                 "file, or put the file back."),
               {path, info.symLinkTarget()});
  }
  if (!info.exists()) throw Worded(Kind::Missing, path);
  if (!info.isFile()) throw Worded(Kind::NotAFile, path);
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) throw Worded(Kind::Unreadable, path);
  const QByteArray start = file.read(Magic.size());
  if (start.isEmpty()) {
    throw Told(Kind::Damaged,
               QT_TRANSLATE_NOOP("Database",
                                 "The data file \"%1\" is empty, and it was left as it is. Please put a sound copy of it in its place, or "
                                 "move it away and install the program again."),
               {path});
  }
  if (!Magic.startsWith(start)) throw Worded(Kind::Foreign, path);
  if (start.size() < Magic.size()) throw Worded(Kind::Damaged, path);
  if (mode == Database::Mode::ReadWrite && !info.isWritable()) throw Worded(Kind::ReadOnly, path);
  // Beside the file itself a change needs its journal.
  if (mode == Database::Mode::ReadWrite && !QFileInfo(QFileInfo(info.canonicalFilePath()).path()).isWritable()) {
    throw Told(
        Kind::ReadOnly,
        QT_TRANSLATE_NOOP("Database",
                          "The folder of the data file \"%1\" is read-only, so nothing can be saved in the file. Please allow writing "
                          "to the folder."),
        {path});
  }
}

// Qt hands a null QString on as NULL; an empty field of a form means an empty text.
QVariant Bindable(const QVariant &value) {
  return value.typeId() == QMetaType::QString && !value.isNull() && value.toString().isNull() ? QVariant(QStringLiteral("")) : value;
}

QString CheckedSchema(const QString &schema) {
  static const QRegularExpression name(QStringLiteral("^[A-Za-z_][A-Za-z0-9_]*$"));
  if (!name.match(schema).hasMatch())
    throw UsageError(QCoreApplication::translate("Database", "\"%1\" cannot name an attached data file.").arg(schema));
  return schema;
}

}  // namespace

std::shared_ptr<Database> Database::OpenDatabase(const QString &path, Mode mode, Check check) {
  CheckFile(path, mode);
  const std::shared_ptr<Database> database(new Database(path, mode));
  if (!database->handle.open()) throw Worded(Kind::Unreadable, path);
  const QString main = QStringLiteral("main");
  try {
    database->CheckHead(main, path);
  } catch (const StoreError &error) {
    if (mode != Mode::ReadOnly || error.Reason() != Kind::ReadOnly) throw;
    UndoCutOffSave(path);
    database->CheckHead(main, path);
  }
  database->Execute(QStringLiteral("PRAGMA foreign_keys = ON"));
  database->Execute(QStringLiteral("PRAGMA synchronous = FULL"));
  if (check == Check::EveryPage) {
    database->CheckEveryPage(main, path);
    database->UseRollbackJournal();
  }
  return database;
}

// Only with a rollback journal is a change over two files one change. Some tools leave a file in another journal mode.
void Database::UseRollbackJournal() {
  if (mode == Mode::ReadWrite) {
    QSqlQuery query(handle);
    query.exec(QStringLiteral("PRAGMA journal_mode = DELETE"));
  }
}

// A reader is refused when a journal waits to be played back: that takes a writer.
void Database::UndoCutOffSave(const QString &path) {
  try {
    OpenDatabase(path, Mode::ReadWrite, Check::HeadOnly);
  } catch (const StoreError &error) {
    if (error.Reason() != Kind::ReadOnly) throw;
    throw Told(
        Kind::ReadOnly,
        QT_TRANSLATE_NOOP("Database",
                          "A save in the data file \"%1\" was cut off and has to be undone before the file can be read. Please allow "
                          "writing to the file and its folder."),
        {path});
  }
}

void Database::SetBusyTimeout(int milliseconds) { busyTimeoutMs = milliseconds; }

Database::Database(QString file, Mode openMode) : path(std::move(file)), mode(openMode) {
  static std::atomic<int> opened{0};
  connection = QStringLiteral("orvani-store-%1").arg(++opened);
  handle = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
  handle.setDatabaseName(path);
  QString options = QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(busyTimeoutMs.load());
  if (mode == Mode::ReadOnly) options += QStringLiteral(";QSQLITE_OPEN_READONLY");
  handle.setConnectOptions(options);
}

Database::~Database() {
  handle.close();
  handle = QSqlDatabase();  // Qt wants the last handle gone before the connection goes
  QSqlDatabase::removeDatabase(connection);
}

void Database::CheckHead(const QString &schema, const QString &file) const {
  if (Pragma(schema, "application_id", file) != ApplicationId) throw Worded(Kind::Foreign, file);
  if (Pragma(schema, "user_version", file) > NewestVersion) throw Worded(Kind::NewerVersion, file);
}

void Database::CheckEveryPage(const QString &schema, const QString &file) const {
  QSqlQuery check(handle);
  if (!check.exec(QStringLiteral("PRAGMA %1.quick_check(1)").arg(schema)) || !check.next()) throw Failure(check, file);
  if (check.value(0).toString() != QLatin1String("ok")) throw Damage(file);
}

qlonglong Database::DataVersion(const QString &schema) const {
  return Pragma(schema, "data_version", schema == QLatin1String("main") ? path : attached.value(schema));
}

qlonglong Database::Pragma(const QString &schema, const char *name, const QString &file) const {
  QSqlQuery query(handle);
  if (!query.exec(QStringLiteral("PRAGMA %1.%2").arg(schema, QLatin1String(name))) || !query.next()) throw Failure(query, file);
  return query.value(0).toLongLong();
}

Recordset Database::OpenRecordset(const QString &sql, const QVariantList &bound) { return Recordset(shared_from_this(), sql, bound); }

int Database::Execute(const QString &sql, const QVariantList &bound) {
  QSqlQuery query(handle);
  Run(query, sql, bound);
  return query.numRowsAffected();
}

QSet<QString> Database::Columns(const QString &table) const {
  QSqlQuery query(handle);
  Run(query, QStringLiteral("SELECT name FROM pragma_table_info(?)"), {table});
  QSet<QString> columns;
  while (query.next()) columns.insert(query.value(0).toString().toLower());
  return columns;
}

void Database::Run(QSqlQuery &query, const QString &sql, const QVariantList &bound) const {
  bool good = query.prepare(sql);
  for (const QVariant &value : bound) query.addBindValue(Bindable(value));
  good = good && query.exec();
  if (!good) throw Failure(query);
}

void Database::Attach(const QString &file, const QString &schema) {
  CheckedSchema(schema);
  CheckFile(file, mode);
  Execute(QStringLiteral("ATTACH DATABASE ? AS %1").arg(schema), {file});
  attached.insert(schema, file);
  try {
    CheckHead(schema, file);
    CheckEveryPage(schema, file);
  } catch (const StoreError &) {
    Detach(schema);
    throw;
  }
}

void Database::Detach(const QString &schema) {
  Execute(QStringLiteral("DETACH DATABASE %1").arg(CheckedSchema(schema)));
  attached.remove(schema);
}

StoreError Database::Failure(const QSqlQuery &query) const {
  // The engine does not tell which of several files refused.
  QStringList paths{path};
  paths += attached.values();
  return Failure(query, paths.join(QStringLiteral("\" or \"")));
}

StoreError Database::Failure(const QSqlQuery &query, const QString &file) const {
  const int code = query.lastError().nativeErrorCode().toInt();
  if (code == Replaced) {
    return Told(Kind::ReadOnly,
                QT_TRANSLATE_NOOP("Database",
                                  "The data file \"%1\" was replaced while this program had it open, so nothing can be saved in it. Please "
                                  "start this program again and repeat the change."),
                {file});
  }
  switch (code & 0xFF) {
    case Busy:
    case Locked: return Worded(Kind::Locked, file);
    case ReadOnly:
    case CannotOpen:  // the journal beside the file could not be made
      return Worded(Kind::ReadOnly, file);
    case InputOutput:
    case Full: return Worded(Kind::NoSpace, file);
    case Corrupt:
    case NotADatabase:  // the file's first bytes were right, so it was one
      return Damage(file);
    default:
      return StoreError(
          tr("The data file \"%1\" refused a request: %2.").arg(QDir::toNativeSeparators(file), query.lastError().databaseText()));
  }
}
