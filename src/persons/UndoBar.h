// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QFrame>
#include <functional>

class QLabel;
class QPushButton;

// A line that tells what was just done and takes it back at one click. It replaces the question before: nothing is lost, and nobody is
// asked. It stays until the next such line.
class UndoBar : public QFrame {
  Q_OBJECT

 public:
  explicit UndoBar(QWidget *parent = nullptr);

  // action: the button's text. undo may throw Error; its sentence is then shown in the line.
  void Offer(const QString &sentence, const QString &action, std::function<void()> undo);
  void Tell(const QString &sentence);  // without a button
  void Clear();

 private:
  void TakeBack();

  QLabel *lblDone;
  QPushButton *cmdUndo;
  std::function<void()> pending;
};
