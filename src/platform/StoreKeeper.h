// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "platform/Database.h"
#include "platform/RestorableError.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QString>

#include <memory>
#include <optional>

// Keeps a copy of each user store beside it, taken when the store opened sound and when the program ends, so that a damaged one can be
// put back: birth times are what a user cannot get again.
class StoreKeeper {
  Q_DECLARE_TR_FUNCTIONS(StoreKeeper)

 public:
  // How moments are written in messages.
  static constexpr QStringView MomentFormat = u"yyyy-MM-dd HH:mm";

  // What to do with a store that opens and whose bytes were changed by no save: refuse it, or take it as the user's word.
  enum class Doubt { Refuse, Accept };

  // Where the copy of a store lies.
  static QString KeptPath(const QString &path) { return path + QStringLiteral(".kept"); }
  // When the copy was taken, local time; nothing when there is none.
  static std::optional<QDateTime> KeptMoment(const QString &path);
  // The same, and nothing when the copy is damaged too.
  static std::optional<QDateTime> SoundCopyMoment(const QString &path);

  // Opens a user store for reading and writing and keeps a copy of it; a copy that cannot be made is a notice only.
  // Throws RestorableError when the store is damaged, missing or doubtful and a sound copy is kept; StoreError otherwise.
  static std::shared_ptr<Database> OpenUserStore(const QString &path, Doubt doubt = Doubt::Refuse);

  // The same for a program that only reads: no copy is made.
  static std::shared_ptr<Database> OpenForReading(const QString &path, Doubt doubt = Doubt::Refuse);

  // Copies the store when its content differs from the kept copy. A copy that holds rows of a table which has none in the store any more
  // is left as it is: an emptied store is no reason to give up the last full copy.
  // Throws StoreError when the store is damaged or doubtful, when it cannot be read, or the copy not written.
  static void KeepCopy(const QString &path);

  // Puts the kept copy back. What lay in its place is moved aside to a name that ends in ".damaged", never deleted.
  // Returns where that lies now, or an empty text when there was nothing.
  // Throws StoreError when there is no sound copy or it cannot be put back; the store is then as it was.
  static QString RestoreCopy(const QString &path);

 private:
  static std::shared_ptr<Database> Open(const QString &path, Database::Mode mode, Doubt doubt);
  static void CheckContent(Database &store, Doubt doubt);
  static void CopySound(Database &store);
};
