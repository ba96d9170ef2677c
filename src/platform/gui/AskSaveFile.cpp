// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "platform/gui/AskSaveFile.h"

#include <QFileDialog>
#include <QFileInfo>

QString AskSaveFile(QWidget *parent, const QString &caption, const QString &suggested, const QString &filter) {
  const QFileInfo file(suggested);
  QFileDialog dialog(parent, caption, file.absolutePath(), filter);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(file.suffix());
  dialog.selectFile(file.fileName());
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}
