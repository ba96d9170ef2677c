// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "persons/UndoBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <utility>

#include "content/Theme.h"
#include "platform/Errors.h"

UndoBar::UndoBar(QWidget *parent) : QFrame(parent) {
  setProperty("role", "card");
  lblDone = new QLabel;
  lblDone->setObjectName(QStringLiteral("lblDone"));
  lblDone->setWordWrap(true);
  lblDone->setTextFormat(Qt::PlainText);
  cmdUndo = new QPushButton;
  cmdUndo->setObjectName(QStringLiteral("cmdUndo"));
  cmdUndo->setAutoDefault(false);
  auto *layout = new QHBoxLayout(this);
  layout->setContentsMargins(2 * Grid::Gap, Grid::Gap, Grid::Gap, Grid::Gap);
  layout->addWidget(lblDone, 1);
  layout->addWidget(cmdUndo);
  connect(cmdUndo, &QPushButton::clicked, this, &UndoBar::TakeBack);
  hide();
}

void UndoBar::Offer(const QString &sentence, const QString &action, std::function<void()> undo) {
  lblDone->setText(sentence);
  cmdUndo->setText(action);
  cmdUndo->setAccessibleName(QString(action).remove(u'&') + QStringLiteral(": ") + sentence);
  cmdUndo->setToolTip(cmdUndo->accessibleName());
  cmdUndo->show();
  pending = std::move(undo);
  show();
}

void UndoBar::Tell(const QString &sentence) {
  lblDone->setText(sentence);
  cmdUndo->hide();
  pending = {};
  show();
}

void UndoBar::Clear() {
  pending = {};
  hide();
}

void UndoBar::TakeBack() {
  const auto undo = std::exchange(pending, {});
  hide();
  if (!undo) return;
  try {
    undo();
  } catch (const Error &fault) {
    Offer(fault.Sentence(), tr("Try again"), undo);
  }
}
