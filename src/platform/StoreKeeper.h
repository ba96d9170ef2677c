// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "platform/Database.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QString>

#include <memory>
#include <optional>

/// Keeps a copy of each user store beside it, taken when the store opened sound, so that a damaged one can be put back:
/// birth times are what a user cannot get again.
class StoreKeeper {
  Q_DECLARE_TR_FUNCTIONS(StoreKeeper)

 public:
  /// How moments are written in messages.
  static constexpr QStringView kMomentFormat = u"yyyy-MM-dd HH:mm";

  /// Where the copy of a store lies.
  static QString KeptPath(const QString &path) { return path + QStringLiteral(".kept"); }
  /// When the copy was taken, local time; nothing when there is none.
  static std::optional<QDateTime> KeptMoment(const QString &path);

  /// Opens a user store for reading and writing and keeps a copy of it; a copy that cannot be made is a notice only.
  /// @throws StoreError; when the store is damaged or missing and a copy is kept, the sentence says so and of when it is
  static std::shared_ptr<Database> OpenUserStore(const QString &path);

  /// Copies the store when its content differs from the kept copy. Only for a store that has just opened sound.
  /// @throws StoreError when the store cannot be read or the copy not written
  static void KeepCopy(const QString &path);

  /// Puts the kept copy back. The damaged store is moved aside to a name that ends in ".damaged", never deleted; nobody may have it open.
  /// Returns where the damaged store lies now, or an empty text when there was none.
  /// @throws StoreError when there is no sound copy or it cannot be put back; the store is then as it was
  static QString RestoreCopy(const QString &path);
};
