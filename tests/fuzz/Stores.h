// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <functional>
#include <memory>

#include "platform/Store.h"

// Opens a user store of that content as the desktop program does, with a sound copy kept beside it, and gives it to `use`. A store that is
// refused must be left as it is; where the copy helps it is put back, and the refused store must still be there. Faults that `use` is told
// in a sentence are no findings.
void TryUserStore(const char *relative, const QByteArray &content, const std::function<void(std::shared_ptr<Database>)> &use);

// Lists the persons with their residences and saves one of them; all the others must stay as they are.
void SaveOnePerson(const std::shared_ptr<Database> &persons, const QString &dailyPath);
