// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QTest>

#include "content/SetFonts.h"
#include "content/pages/PageView.h"
#include "support/SampleDay.h"

// A caption of a page by its element's name.
inline QString Text(const QWidget &page, const QString &name) {
  if (const auto *label = page.findChild<QLabel *>(name)) return label->text();
  if (const auto *button = page.findChild<QAbstractButton *>(name)) return button->text();
  ADD_FAILURE() << "no element " << name.toStdString();
  return {};
}

// The sample person's pages on screen.
class PageFixture : public testing::Test, protected SampleDay {
 protected:
  explicit PageFixture(const QDateTime &moment) : SampleDay(moment) {}

  template <class View>
  View &Show(View &page, const QSize &size = {880, 640}) {
    page.resize(size);
    page.Fill(session);
    page.ApplyFonts(fonts);
    page.show();
    QTest::qWait(1);
    return page;
  }

  // The rows whose mark is written.
  static QList<int> Marked(const QWidget &page, const QString &element, int rows) {
    QList<int> marked;
    for (int row = 0; row < rows; ++row)
      if (!Text(page, element + QString::number(row)).isEmpty()) marked << row;
    return marked;
  }

  SetFonts fonts{*FindLanguage(paths, QStringLiteral("English"))};
};
