// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/StoreRescue.h"

#include <QFileInfo>

#include "app/Maker.h"
#include "app/MessageBoxes.h"
#include "platform/FileTools.h"
#include "platform/Notices.h"
#include "platform/StoreKeeper.h"

namespace {

const QString Paragraph = QStringLiteral("\n\n");

}  // namespace

std::shared_ptr<Database> StoreRescue::Open(const QString &path) {
  auto doubt = StoreKeeper::Doubt::Refuse;
  for (;;) {
    try {
      return StoreKeeper::OpenUserStore(path, doubt);
    } catch (const RestorableError &error) {
      const bool isUsable = error.StoreState() == RestorableError::State::Doubtful;
      const QString question = isUsable ? tr("Put the kept copy back now? With No the file is used as it is.")
                                        : tr("Put the kept copy back now? What lies there is moved aside, and nothing is deleted.");
      try {
        if (boxes.Ask(Maker::Title, error.Sentence() + Paragraph + question)) {
          const QString aside = StoreKeeper::RestoreCopy(path);
          if (aside.isEmpty()) continue;
          Notices::Show({Notice::Kind::Information, Maker::Title,
                         tr("The kept copy is back in its place. The former file is \"%1\".").arg(QFileInfo(aside).fileName())});
          continue;
        }
      } catch (const StoreError &failed) {
        Notices::Show({Notice::Kind::Critical, Maker::Title, failed.Sentence()});
        return nullptr;
      }
      if (!isUsable) return nullptr;
      doubt = StoreKeeper::Doubt::Accept;
    } catch (const StoreError &error) {
      if (error.Reason() == StoreError::Kind::Locked && boxes.Ask(Maker::Title, error.Sentence() + Paragraph + tr("Try again now?")))
        continue;
      if (error.Reason() != StoreError::Kind::Locked) Notices::Show({Notice::Kind::Critical, Maker::Title, error.Sentence()});
      if (error.Reason() != StoreError::Kind::ReadOnly) return nullptr;
      try {
        return StoreKeeper::OpenForReading(path, StoreKeeper::Doubt::Accept);
      } catch (const StoreError &unreadable) {
        Notices::Show({Notice::Kind::Critical, Maker::Title, unreadable.Sentence()});
        return nullptr;
      }
    }
  }
}

std::unique_ptr<FileUserSettings> StoreRescue::OpenSettings(const QString &path) {
  try {
    return std::make_unique<FileUserSettings>(path);
  } catch (const StoreError &error) {
    if (error.Reason() != StoreError::Kind::Damaged && error.Reason() != StoreError::Kind::NotAFile) throw;
    const QString question = tr("Start with the usual settings now? What lies there is moved aside, and nothing is deleted.");
    if (!boxes.Ask(Maker::Title, error.Sentence() + Paragraph + question)) return nullptr;
  }
  SetAside(FileUserSettings::PathOf(path));
  return std::make_unique<FileUserSettings>(path);
}
