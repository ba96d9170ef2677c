// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>
#include <deque>
#include <functional>

#include "platform/Notices.h"

// The message boxes of the program. While it lives it receives every notice.
//
// A page that meets forty missing words must not open forty boxes: notices that come during the fill of a page, or
// while a box is open, wait; texts that wait already are dropped; and those that waited are shown in one box together.
class MessageBoxes : public QObject {
  Q_OBJECT

 public:
  // Shows one box and returns when it is closed.
  using Presenter = std::function<void(const Notice &)>;
  using Asker = std::function<bool(const QString &title, const QString &text)>;

  explicit MessageBoxes(QObject *parent = nullptr);
  ~MessageBoxes() override;

  // Tests record instead of opening boxes; an empty function brings the boxes back.
  void SetPresenter(Presenter show) { presenter = std::move(show); }
  void SetAsker(Asker ask) { asker = std::move(ask); }

  // Notices wait for as long as a fill lives, and are shown when the event loop runs next.
  class Fill {
   public:
    explicit Fill(MessageBoxes &owner) : boxes(owner) { ++boxes.fills; }
    ~Fill() { boxes.EndFill(); }
    Fill(const Fill &) = delete;
    Fill &operator=(const Fill &) = delete;

   private:
    MessageBoxes &boxes;
  };

  void Show(const Notice &notice);

  // A yes or no question; No is what Enter and Esc choose.
  bool Ask(const QString &title, const QString &text);

 private:
  void EndFill();
  void ShowWaiting();
  Notice TakeWaiting();

  Presenter presenter;
  Asker asker;
  Notices::Handler former;
  std::deque<Notice> waiting;
  Notice open;
  bool isOpen = false;
  int fills = 0;
};
