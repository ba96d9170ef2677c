// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QUrl>
#include <functional>

#include "platform/clsIni.h"

class QCheckBox;
class QLabel;
class QPushButton;

// A message that the user can turn off. The tick is kept under the message's number in section "SHOWERROR" of the
// configuration file: "False" when it is not to come again, else "True". Whether it is shown at all is the caller's to ask.
class frmMessage : public QDialog {
  Q_OBJECT

 public:
  using Opener = std::function<void(const QUrl &)>;

  explicit frmMessage(clsIni configuration, QWidget *parent = nullptr);

  // Texts by number from the table of messages. Throws SubscriptError for a number without a text.
  void ShowMessage(int message, int title, QWidget *owner, bool showTick);
  // Texts as given; such a message has no number, and its tick is not kept.
  void ShowMessageTxt(const QString &message, const QString &title, QWidget *owner, bool showTick);
  void ShowLinkMessage(const QString &message, const QString &link, const QString &title, QWidget *owner, bool showTick);

  static QString TableText(int number);
  // Whether the message may still be shown: false once it was turned off.
  static bool IsWanted(const clsIni &configuration, int number);

  // The address with "http://" once in front, wherever and however often it stood.
  static QString Address(const QString &link);
  // Opens the link; the desktop's own way when it is not set.
  void SetOpener(Opener opener) { openAddress = std::move(opener); }

 private:
  void Run(int number, const QString &message, const QString &link, const QString &title, QWidget *owner, bool showTick);
  void OnOk();

  clsIni ini;
  int current = 0;  // number of the message that is shown, 0 for one without
  Opener openAddress;
  QLabel *lblMessage;
  QPushButton *lblLink;
  QCheckBox *chkDontShow;
  QPushButton *cmdOK;
};
