// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QFrame>
#include <QVBoxLayout>

// A card of the skin: a quiet frame that holds one group of captions.
class Card : public QFrame {
  Q_OBJECT

 public:
  explicit Card(QWidget *parent = nullptr);

  QVBoxLayout *Body() const { return body; }

 private:
  QVBoxLayout *body;
};
