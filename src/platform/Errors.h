// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <exception>
#include <utility>

// Root of every fault this program raises. Each carries one sentence that a user understands and that a screen may show as it is.
class Error : public std::exception {
 public:
  explicit Error(QString text) : sentence(std::move(text)), utf8(sentence.toUtf8()) {}

  const QString &Sentence() const { return sentence; }
  const char *what() const noexcept override { return utf8.constData(); }

 private:
  QString sentence;
  QByteArray utf8;
};

// A store file that cannot be opened, read or changed, or a recordset used where it has no row.
class StoreError : public Error {
 public:
  // What went wrong, for callers that mend some cases (a damaged store has a kept copy, a read-only one can still be shown).
  enum class Kind {
    Missing,
    NotAFile,
    Unreadable,
    ReadOnly,
    Locked,
    Foreign,
    Damaged,
    NewerVersion,
    NoSpace,
    NoCurrentRow,
    UnknownColumn,
    Other
  };

  explicit StoreError(QString text, Kind reason = Kind::Other) : Error(std::move(text)), kind(reason) {}

  Kind Reason() const { return kind; }

 private:
  Kind kind;
};

// An index outside the array it was meant for.
class SubscriptError : public Error {
 public:
  using Error::Error;

  // Throws when `index` is outside `low` to `high`, both included.
  static void Check(const char *array, int index, int low, int high) {
    if (index >= low && index <= high) return;
    throw SubscriptError(QCoreApplication::translate("SubscriptError", "%1 was asked for item %2, and it has items %3 to %4 only.")
                             .arg(QString::fromUtf8(array))
                             .arg(index)
                             .arg(low)
                             .arg(high));
  }
};

// A text that is no number, date or time where one was needed.
class ConversionError : public Error {
 public:
  using Error::Error;
};

// A calculation without a result: a zero denominator, a number that is not finite.
class ArithmeticError : public Error {
 public:
  using Error::Error;
};

// A file that the program cannot run without.
class MissingFileError : public Error {
 public:
  explicit MissingFileError(QString text, QString heading = QString()) : Error(std::move(text)), title(std::move(heading)) {}

  // Title for the message box; empty when the caller may choose one.
  const QString &Title() const { return title; }

 private:
  QString title;
};

// A request that makes no sense where it was made: a wrong command line, a call out of order.
class UsageError : public Error {
 public:
  using Error::Error;
};
