// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <vector>

#include "content/pages/PageView.h"

class QTextEdit;

// The text of the prediction pages: headings and paragraphs in a measure that is easy to read.
class RichTextView : public PageView {
  Q_OBJECT

 public:
  explicit RichTextView(QWidget *parent = nullptr);

  void AppendHead(const QString &text);  // Arial 12, bold
  void AppendBody(const QString &text);  // Arial 10
  void Clear();

  // In steps of a point; 0 is the size as it was set.
  void SetZoom(int steps);

  void Fill(SelvaniDailyMod &) override {}       // the page's text is appended by whoever shows it
  void ApplyFonts(const SetFonts &) override {}  // heads and bodies bring their own

 protected:
  void resizeEvent(QResizeEvent *event) override;
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  struct Piece {
    QString text;
    bool head = false;
  };

  void Write(const Piece &piece);
  void FitMeasure();

  std::vector<Piece> pieces;
  QTextEdit *area;
  int zoom = 0;
};
