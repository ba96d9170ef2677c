// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/frmMessage.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWindow>

#include "content/ShellFonts.h"
#include "content/Skin.h"
#include "content/Theme.h"
#include "platform/Errors.h"
#include "platform/Notices.h"

namespace {

struct NumberedText {
  int number;
  const char *text;
};
constexpr NumberedText Texts[] = {
    {13,
     QT_TRANSLATE_NOOP("frmMessage", "Your Screen resolution is low. For best display select a resolution of 800x600 pixels or higher.")},
    {14, QT_TRANSLATE_NOOP("frmMessage", "Low Resolution")},
};

const QString Section = QStringLiteral("SHOWERROR");

}  // namespace

frmMessage::frmMessage(clsIni configuration, QWidget *parent)
    : QDialog(parent), ini(std::move(configuration)), openAddress([](const QUrl &url) { QDesktopServices::openUrl(url); }) {
  setObjectName(QStringLiteral("frmMessage"));
  setModal(true);
  const SetFonts fonts = ShellFonts();

  auto *picture = new QLabel;
  picture->setPixmap(Skin::Pixmap(QStringLiteral("msgInfo"), QSize(40, 40), devicePixelRatioF()));
  picture->setAccessibleName(tr("Information"));
  picture->setAlignment(Qt::AlignTop);
  lblMessage = new QLabel;
  lblMessage->setObjectName(QStringLiteral("lblMessage"));
  lblMessage->setTextFormat(Qt::PlainText);
  lblMessage->setWordWrap(true);
  lblMessage->setMinimumWidth(360);
  fonts.SetNormalFont(*lblMessage);
  lblLink = new QPushButton;
  lblLink->setObjectName(QStringLiteral("lblLink"));
  lblLink->setProperty("role", "link");
  lblLink->setCursor(Qt::PointingHandCursor);
  lblLink->setAutoDefault(false);
  fonts.SetNormalFont(*lblLink);
  chkDontShow = new QCheckBox(tr("Do not show this message again"));
  chkDontShow->setObjectName(QStringLiteral("chkDontShow"));
  fonts.SetNormalFont(*chkDontShow);
  cmdOK = new QPushButton(tr("OK"));
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  cmdOK->setProperty("role", "primary");
  cmdOK->setDefault(true);
  fonts.SetNormalFont(*cmdOK);

  auto *words = new QVBoxLayout;
  words->setSpacing(Grid::Gap);
  words->addWidget(lblMessage);
  words->addWidget(lblLink, 0, Qt::AlignLeft);
  auto *top = new QHBoxLayout;
  top->setSpacing(2 * Grid::Gap);
  top->addWidget(picture);
  top->addLayout(words, 1);
  auto *bottom = new QHBoxLayout;
  bottom->addWidget(chkDontShow);
  bottom->addStretch();
  bottom->addWidget(cmdOK);
  auto *all = new QVBoxLayout(this);
  all->setContentsMargins(Grid::Margin, Grid::Margin, Grid::Margin, Grid::Margin);
  all->setSpacing(2 * Grid::Gap);
  all->setSizeConstraint(QLayout::SetFixedSize);
  all->addLayout(top);
  all->addLayout(bottom);

  connect(cmdOK, &QPushButton::clicked, this, &frmMessage::OnOk);
  connect(lblLink, &QPushButton::clicked, this, [this] { openAddress(QUrl(Address(lblLink->text()))); });
}

QString frmMessage::TableText(int number) {
  for (const NumberedText &row : Texts)
    if (row.number == number) return tr(row.text);
  throw SubscriptError(tr("There is no message with the number %1.").arg(number));
}

bool frmMessage::IsWanted(const clsIni &configuration, int number) {
  return configuration.GetIniString(QString::number(number), QStringLiteral("True"), Section)
             .compare(QLatin1String("False"), Qt::CaseInsensitive) != 0;
}

QString frmMessage::Address(const QString &link) {
  QString address = link.trimmed();
  // A secure address stays as it is: with another scheme in front nothing could open it.
  if (address.startsWith(QLatin1String("https://"), Qt::CaseInsensitive)) return address;
  address.remove(QLatin1String("http://"), Qt::CaseInsensitive);
  return QStringLiteral("http://") + address;
}

void frmMessage::ShowMessage(int message, int title, QWidget *owner, bool showTick) {
  Run(message, TableText(message), QString(), TableText(title), owner, showTick);
}

void frmMessage::ShowMessageTxt(const QString &message, const QString &title, QWidget *owner, bool showTick) {
  Run(0, message, QString(), title, owner, showTick);
}

void frmMessage::ShowLinkMessage(const QString &message, const QString &link, const QString &title, QWidget *owner, bool showTick) {
  Run(0, message, link, title, owner, showTick);
}

void frmMessage::Run(int number, const QString &message, const QString &link, const QString &title, QWidget *owner, bool showTick) {
  current = number;
  setWindowTitle(title);
  lblMessage->setText(message);
  lblLink->setText(link);
  lblLink->setVisible(!link.isEmpty());
  lblLink->setAccessibleName(tr("Open %1").arg(link));
  chkDontShow->setChecked(false);
  chkDontShow->setVisible(showTick);
  cmdOK->setFocus();
  if (owner) {
    // The owner changes from call to call, and must not come to own this screen.
    create();
    windowHandle()->setTransientParent(owner->window()->windowHandle());
    adjustSize();
    move(owner->window()->frameGeometry().center() - rect().center());
  }
  exec();
}

void frmMessage::OnOk() {
  try {
    if (current > 0) ini.WriteIniString(QString::number(current), QLatin1String(chkDontShow->isChecked() ? "False" : "True"), Section);
  } catch (const StoreError &error) {
    Notices::Show({Notice::Kind::Warning, QString(), error.Sentence()});
  }
  accept();
}
