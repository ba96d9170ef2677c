// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

class Case;

// The members that the tool asks for, from a text file. "[tables]" begins the members that need no chart, asked of
// case -1; "[first]" those asked of the first birth alone; "[charts]" those asked of every birth. In a line,
// {a..b} stands for each whole number and {x|y|z} for each text; several braces combine, the last running slowest.
struct MemberList {
  QStringList tables, first, charts;

  QStringList For(const Case &one) const;
};

// Throws MissingFileError for a file that cannot be read and ConversionError for a line outside a section.
MemberList ReadMemberList(const QString &path);
