// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QBuffer>
#include <QPageSize>
#include <QPdfWriter>

#include "platform/DocumentInfo.h"

// A PDF in the making. It is written to memory first and stored in one step, so that a failure leaves neither half a file
// nor a spoilt older one.
class PdfFile {
 public:
  explicit PdfFile(const QPageSize &paper = QPageSize(QPageSize::A4));

  QPdfWriter &Device() { return writer; }

  // Stores the finished document: its painter has ended. Throws StoreError, and leaves an older file as it was.
  void Store(const QString &path, const DocumentInfo &info);

  // Throws StoreError where no file can be written at `path`.
  static void CheckWritable(const QString &path);

  // Paper by the country of the desktop's settings: Letter in North America, A4 elsewhere.
  static QPageSize UsualPaper();

  // The document with its information dictionary in place of the writer's, added at its end as the format allows.
  static QByteArray WithInfo(const QByteArray &pdf, const DocumentInfo &info);

 private:
  QBuffer content;
  QPdfWriter writer;
};
