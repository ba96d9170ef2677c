// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include "persons/PersonFiles.h"
#include "platform/Notices.h"

// A screen over the store of persons and places, used by the names of its fields.
template <class Screen>
class PersonScreen : public PersonFiles {
 public:
  template <class T>
  T *Find(const char *name) const {
    T *found = screen->template findChild<T *>(QLatin1String(name));
    EXPECT_TRUE(found) << name;
    return found;
  }
  QComboBox *List(const char *name) const { return screen->template findChild<QComboBox *>(QLatin1String(name)); }
  QLineEdit *Edit(const char *name) const { return List(name) ? List(name)->lineEdit() : Find<QLineEdit>(name); }
  QString Text(const char *name) const { return List(name) ? List(name)->currentText() : Find<QLineEdit>(name)->text(); }
  void Set(const char *name, const QString &text) const {
    List(name) ? List(name)->setCurrentText(text) : Find<QLineEdit>(name)->setText(text);
  }
  void Type(const char *name, const QString &text) const {
    Edit(name)->setFocus();
    Edit(name)->selectAll();
    QTest::keyClick(Edit(name), Qt::Key_Delete);
    QTest::keyClicks(Edit(name), text);
  }
  void Click(const char *name) const { Find<QAbstractButton>(name)->click(); }
  QString Fault(const char *field) const {
    const auto *label = Find<QLabel>((std::string("fault_") + field).c_str());
    return label->isHidden() ? QString() : label->text();
  }

  std::shared_ptr<Database> db = OpenPersons();
  std::unique_ptr<Screen> screen;
  NoticeRecorder notices;
};
