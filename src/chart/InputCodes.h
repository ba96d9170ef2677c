// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <Qt>

// The numbers by which this program's own controls tell buttons and keys in their events.
namespace InputCodes {

// 1 left, 2 right, 4 middle, added together where several are down.
inline int Button(Qt::MouseButtons buttons) {
  return (buttons.testFlag(Qt::LeftButton) ? 1 : 0) + (buttons.testFlag(Qt::RightButton) ? 2 : 0) +
         (buttons.testFlag(Qt::MiddleButton) ? 4 : 0);
}

// 1 Shift, 2 Ctrl, 4 Alt, added together.
inline int Shift(Qt::KeyboardModifiers keys) {
  return (keys.testFlag(Qt::ShiftModifier) ? 1 : 0) + (keys.testFlag(Qt::ControlModifier) ? 2 : 0) +
         (keys.testFlag(Qt::AltModifier) ? 4 : 0);
}

// Whether a key does what a click does.
inline bool Activates(int key) { return key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Select; }

}  // namespace InputCodes
