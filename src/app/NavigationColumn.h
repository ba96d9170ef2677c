// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QHash>
#include <QWidget>

class ElidedLabel;
class ImageButton;
class QFrame;

// The buttons of the left column, a row each: picture, name, and a mark on the row of the page that is open.
class NavigationColumn : public QWidget {
  Q_OBJECT

 public:
  struct Entry {
    const char *name;  // element and picture
    QString text;
    QString hint;
  };

  NavigationColumn(const QList<Entry> &entries, QWidget *parent);

  ImageButton *Button(const char *name) const { return buttons.value(QLatin1String(name)); }
  void Mark(const char *name);  // none for an empty name

 signals:
  void Pressed(const QString &name);
  void Hint(const QString &hint);  // of the button under the pointer or with the focus; empty when it is left

 protected:
  void resizeEvent(QResizeEvent *event) override;
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  void PlaceHints();

  QHash<QString, ImageButton *> buttons;
  QHash<QString, QFrame *> rows;
  QHash<QObject *, QString> hints;
  QHash<ImageButton *, ElidedLabel *> beside;  // the hint in the row itself
};
