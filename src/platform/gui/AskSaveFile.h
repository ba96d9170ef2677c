// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

// Asks where to save; empty where the user chose nothing. A name without an ending gets that of the suggested one before the question
// whether a file may be replaced is asked, so that the question is about the file that will be written.
// suggested: a name, with its folder or without.
QString AskSaveFile(QWidget *parent, const QString &caption, const QString &suggested, const QString &filter);
