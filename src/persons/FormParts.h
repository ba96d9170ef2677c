// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <functional>

class QLabel;
class QPushButton;
class QWidget;

// What the screens of persons and places are put together from.
namespace FormParts {

// role: how the theme dresses it. buddy: the field that the label's shortcut leads to.
QLabel *MakeLabel(const QString &text, const char *role, QWidget *buddy = nullptr);
QLabel *MakeHeading(const QString &text);
// The place for a word on what is wrong in a field; hidden until there is one. field: the object name of that field.
QLabel *MakeFault(const QString &field);
// name: the object name, and that of the picture on it.
QPushButton *MakeButton(const char *name, const QString &text, const QString &hint);

// Shows the sentence; an empty one hides the label.
void Say(QLabel &label, const QString &sentence);

// Does the work; its fault is told under the screen's title, and the screen stays as it is.
void Guard(const QWidget &screen, const std::function<void()> &work);

}  // namespace FormParts
