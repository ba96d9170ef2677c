// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>
#include <vector>

// One message for the user that stops nothing.
struct Notice {
  enum class Kind { Information, Warning, Critical };

  Kind kind = Kind::Information;
  QString title;  // may be empty
  QString text;
};

// The one way by which code without a screen tells the user something: message boxes in the program, lines on stderr elsewhere.
class Notices {
 public:
  using Handler = std::function<void(const Notice &)>;

  static void Show(const Notice &notice);

  // Puts `handler` in charge and returns the former one. An empty handler brings back the default, which writes one line to stderr.
  static Handler Install(Handler handler);
};

// Collects notices for as long as it lives, for tests and for runs that report at the end.
class NoticeRecorder {
 public:
  NoticeRecorder();
  ~NoticeRecorder();
  NoticeRecorder(const NoticeRecorder &) = delete;
  NoticeRecorder &operator=(const NoticeRecorder &) = delete;

  const std::vector<Notice> &Seen() const { return seen; }
  void Clear() { seen.clear(); }

 private:
  std::vector<Notice> seen;
  Notices::Handler former;
};
