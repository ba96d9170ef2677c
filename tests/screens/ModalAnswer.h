// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QTimer>
#include <functional>

// Answers the modal screens that open while it lives, as a user would; without an answer they are closed.
class ModalAnswer {
 public:
  using Answer = std::function<void(QWidget &)>;

  explicit ModalAnswer(Answer answer = {}) {
    QObject::connect(&timer, &QTimer::timeout, [this, answer] {
      QWidget *screen = QApplication::activeModalWidget();
      if (!screen) return;
      ++seen;
      if (answer) answer(*screen);
      if (screen->isVisible()) screen->close();
    });
    timer.start(5);
  }
  int Seen() const { return seen; }

 private:
  QTimer timer;
  int seen = 0;
};
