// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "persons/frmPeople.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QStringListModel>
#include <QVBoxLayout>
#include <algorithm>

#include "content/ShellFonts.h"
#include "content/Theme.h"
#include "persons/PersonStore.h"

frmPeople::frmPeople(QWidget *parent) : DropDown(parent) {
  setObjectName(QStringLiteral("frmPeople"));
  setWindowTitle(tr("Persons"));
  const SetFonts fonts = ShellFonts();
  model = new QStringListModel(this);
  shown = new QSortFilterProxyModel(this);
  shown->setSourceModel(model);
  shown->setFilterCaseSensitivity(Qt::CaseInsensitive);

  txtFind = new QLineEdit;
  txtFind->setObjectName(QStringLiteral("txtFind"));
  txtFind->setPlaceholderText(tr("Type any part of a name"));
  txtFind->setAccessibleName(tr("Find a person"));
  txtFind->setClearButtonEnabled(true);
  fonts.SetNormalFont(*txtFind);
  auto *column = new QLabel(tr("Name"));
  column->setProperty("role", "caption");
  fonts.SetSmallFont(*column);
  lblCount = new QLabel;
  lblCount->setObjectName(QStringLiteral("lblCount"));
  lblCount->setProperty("role", "caption");
  fonts.SetSmallFont(*lblCount);
  lvwPeople = new QListView;
  lvwPeople->setObjectName(QStringLiteral("lvwPeople"));
  lvwPeople->setAccessibleName(tr("Persons"));
  lvwPeople->setModel(shown);
  lvwPeople->setUniformItemSizes(true);  // thousands of rows are laid out at once
  lvwPeople->setEditTriggers(QAbstractItemView::NoEditTriggers);
  lvwPeople->setAlternatingRowColors(true);
  lvwPeople->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  lvwPeople->setMinimumSize(320, 280);
  fonts.SetNormalFont(*lvwPeople);
  lblNone = new QLabel;
  lblNone->setObjectName(QStringLiteral("lblNone"));
  lblNone->setAlignment(Qt::AlignCenter);
  lblNone->setWordWrap(true);
  lblNone->setMinimumSize(320, 280);
  lblNone->setProperty("role", "caption");
  fonts.SetNormalFont(*lblNone);
  cmdManage = new QPushButton(tr("&Manage persons..."));
  cmdManage->setObjectName(QStringLiteral("cmdManage"));
  cmdManage->setAutoDefault(true);
  fonts.SetNormalFont(*cmdManage);

  auto *heads = new QHBoxLayout;
  heads->setContentsMargins(Grid::Gap, 0, Grid::Gap, 0);
  heads->addWidget(column);
  heads->addStretch();
  heads->addWidget(lblCount);
  auto *all = new QVBoxLayout(this);
  all->setContentsMargins(2 * Grid::Gap, 2 * Grid::Gap, 2 * Grid::Gap, 2 * Grid::Gap);
  all->setSpacing(Grid::Gap);
  all->addWidget(txtFind);
  all->addLayout(heads);
  all->addWidget(lvwPeople, 1);
  all->addWidget(lblNone, 1);
  all->addWidget(cmdManage);
  lblNone->hide();

  txtFind->installEventFilter(this);
  lvwPeople->installEventFilter(this);
  connect(txtFind, &QLineEdit::textChanged, this, &frmPeople::Narrow);
  connect(lvwPeople, &QListView::doubleClicked, this, &frmPeople::Choose);
  connect(cmdManage, &QPushButton::clicked, this, [this] {
    reject();
    emit ManagePersons();
  });
}

void frmPeople::Fill(const Database &personDb) { SetNames(PersonStore::NamesIn(personDb)); }

void frmPeople::SetNames(const QStringList &names) {
  model->setStringList(names);
  txtFind->clear();
  Narrow(QString());
}

void frmPeople::SetCurrent(const QString &name) {
  current = name.trimmed();
  Narrow(txtFind->text());
}

void frmPeople::Narrow(const QString &typed) {
  const QString part = typed.trimmed();
  shown->setFilterFixedString(part);
  int row = 0;
  if (part.isEmpty() && !current.isEmpty()) {
    const QModelIndexList same = shown->match(shown->index(0, 0), Qt::DisplayRole, current, 1, Qt::MatchFixedString);
    if (!same.isEmpty()) row = same.first().row();
  }
  MarkRow(row);
  const bool none = shown->rowCount() == 0;
  lvwPeople->setVisible(!none);
  lblNone->setVisible(none);
  lblNone->setText(model->rowCount() == 0 ? tr("There are no persons yet.") : tr("No name holds \u201c%1\u201d.").arg(part));
  ShowCount();
}

void frmPeople::ShowCount() {
  const int all = model->rowCount();
  const int left = shown->rowCount();
  lblCount->setText(left < all ? tr("%1 of %2").arg(left).arg(all) : QString::number(all));
}

void frmPeople::MarkRow(int row) {
  const QModelIndex index = shown->index(std::clamp(row, 0, std::max(0, shown->rowCount() - 1)), 0);
  lvwPeople->setCurrentIndex(index);
  if (index.isValid()) lvwPeople->scrollTo(index, QAbstractItemView::EnsureVisible);
}

void frmPeople::Choose() {
  const QModelIndex index = lvwPeople->currentIndex();
  if (!index.isValid() || !isVisible()) return;
  const QString name = index.data().toString();
  accept();
  emit Chosen(name);
}

bool frmPeople::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() != QEvent::KeyPress) return DropDown::eventFilter(watched, event);
  auto *key = static_cast<QKeyEvent *>(event);
  const int page = qMax(1, lvwPeople->viewport()->height() / qMax(1, lvwPeople->sizeHintForRow(0)));
  const int row = lvwPeople->currentIndex().row();
  switch (key->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: Choose(); return true;
    // The list follows the arrows while the name is typed.
    case Qt::Key_Down: MarkRow(row + 1); return true;
    case Qt::Key_Up: MarkRow(row - 1); return true;
    case Qt::Key_PageDown: MarkRow(row + page); return true;
    case Qt::Key_PageUp: MarkRow(row - page); return true;
    default: break;
  }
  if (watched == lvwPeople && !key->text().isEmpty() && key->text().front().isPrint()) {
    txtFind->setFocus();
    txtFind->insert(key->text());
    return true;
  }
  return DropDown::eventFilter(watched, event);
}

void frmPeople::showEvent(QShowEvent *event) {
  DropDown::showEvent(event);
  txtFind->setFocus();
  txtFind->selectAll();
  if (lvwPeople->currentIndex().isValid()) lvwPeople->scrollTo(lvwPeople->currentIndex(), QAbstractItemView::PositionAtCenter);
}
