// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <QPixmap>
#include <QTimer>
#include <vector>

class QLabel;
class QProgressBar;
class QPushButton;

// Progress of long work, which runs in the screen's own thread: each report of progress also moves the picture and
// lets the Cancel button be pressed. Input elsewhere in the program waits while this screen is open.
class frmStatus : public QDialog {
  Q_OBJECT

 public:
  explicit frmStatus(QWidget *parent = nullptr);

  // Each starts anew and leaves the screen showing.
  void ExportStatus();
  void PrintStatus();
  void PDFStatus();
  void MuhurthaStatus();

  // Units of work; a total of 0 or less shows that work goes on without telling how much is left.
  void SetProgress(int done, int total);

  // Only for work that asks WasCancelled and stops: without the button the screen cannot be closed by the user.
  void SetCancelVisible(bool visible);
  bool WasCancelled() const { return cancelled; }

  void reject() override;

 protected:
  void showEvent(QShowEvent *event) override;
  void hideEvent(QHideEvent *event) override;

 private:
  void Begin(const QString &caption, const QString &text);
  void Tick();
  void LetPaint();
  void LoadFrames();

  QLabel *ani1;
  QLabel *lblHead;
  QLabel *lblStatus;
  QProgressBar *prgStatus;
  QPushButton *cmdCancel;
  std::vector<QPixmap> frames;
  size_t frame = 0;
  QTimer timer;
  QElapsedTimer sinceFrame, sincePaint;
  bool cancelled = false, canCancel = false;
};
