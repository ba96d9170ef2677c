// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

// Whole files at once, for the other sources of this folder.

/// @throws StoreError that names the file
QByteArray ReadWholeFile(const QString &path);

/// Writes aside and renames, so that the file is the old one or the new one and never half of each. Makes the folder when needed.
/// @throws StoreError that names the file, which is then as it was
void WriteWholeFile(const QString &path, const QByteArray &content);
