// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/BirthOrDay.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QSignalBlocker>

#include "content/SetFonts.h"
#include "content/Theme.h"

BirthOrDay::BirthOrDay(QWidget *parent) : QWidget(parent), options{new QRadioButton(tr("&Birth")), new QRadioButton(tr("This &day"))} {
  auto *row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(Grid::Gap);
  options[Birth]->setObjectName(QStringLiteral("optBirth"));
  options[Birth]->setAccessibleName(tr("Chart of the birth"));
  options[Day]->setObjectName(QStringLiteral("optDay"));
  options[Day]->setAccessibleName(tr("Chart of this day"));
  for (QRadioButton *option : options) row->addWidget(option);
  options[Birth]->setChecked(true);
  connect(options[Day], &QRadioButton::toggled, this, &BirthOrDay::Changed);
}

size_t BirthOrDay::Chosen() const { return options[Day]->isChecked() ? Day : Birth; }

QComboBox *BirthOrDay::AddList(const QString &element, const QString &accessibleName) {
  list = new QComboBox;
  list->setObjectName(element);
  list->setAccessibleName(accessibleName);
  auto *row = static_cast<QHBoxLayout *>(layout());
  row->addSpacing(Grid::Gap);
  row->addWidget(list);
  connect(list, &QComboBox::currentIndexChanged, this, &BirthOrDay::Changed);
  return list;
}

void BirthOrDay::SetList(const QStringList &names, int first) {
  const QSignalBlocker quiet(list);
  const int before = list->currentIndex();
  list->clear();
  list->addItems(names);
  list->setCurrentIndex(before < 0 ? first : before);
}

void BirthOrDay::ApplyFonts(const SetFonts &fonts) {
  if (list) fonts.SetSmallFont(*list);
  for (QRadioButton *option : options) fonts.SetSmallFont(*option);
}
