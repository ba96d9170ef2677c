// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <memory>

#include "platform/Database.h"
#include "platform/UserSettings.h"

class MessageBoxes;

// Opens what the user's work lies in, and asks what to do where that fails. The program goes on in every case.
class StoreRescue {
  Q_DECLARE_TR_FUNCTIONS(StoreRescue)

 public:
  explicit StoreRescue(MessageBoxes &messageBoxes) : boxes(messageBoxes) {}

  // A damaged, missing or foreign store: its kept copy is offered. A locked one: another try. A read-only one is opened for reading.
  // Gives nothing, after the reason has been told, where the store stays shut.
  std::shared_ptr<Database> Open(const QString &path);

  // The settings file, empty for the user's own; a damaged one is set aside after a question. Gives nothing where the user says no.
  // Throws StoreError where it cannot be read or set aside.
  std::unique_ptr<FileUserSettings> OpenSettings(const QString &path = QString());

 private:
  MessageBoxes &boxes;
};
