// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/Theme.h"

#include <QApplication>
#include <QPalette>

#include "content/SetFonts.h"
#include "content/pages/PageScroll.h"

Theme Theme::Light() {
  Theme theme;
  theme.chart = ChartPalette::Light();
  theme.good = QColor(0x3F, 0x6B, 0x46);
  theme.goodBack = QColor(0xE3, 0xEF, 0xE2);
  theme.bad = QColor(0x9C, 0x3A, 0x34);
  theme.badBack = QColor(0xF8, 0xE4, 0xE1);
  theme.selection = QColor(0xF4, 0xE7, 0xD3);
  theme.tint = QColor(0xFB, 0xF7, 0xF0);
  theme.edge = QColor(0x8D, 0x80, 0x71);
  return theme;
}

namespace {

Theme Dark() {
  Theme theme;
  theme.chart = ChartPalette::Dark();
  theme.good = QColor(0x9C, 0xCB, 0xA2);
  theme.goodBack = QColor(0x26, 0x3A, 0x2A);
  theme.bad = QColor(0xEE, 0xA0, 0x98);
  theme.badBack = QColor(0x45, 0x28, 0x26);
  theme.selection = QColor(0x46, 0x37, 0x28);
  theme.tint = theme.chart.paper;
  theme.edge = QColor(0x8A, 0x7B, 0x70);
  theme.dark = true;
  return theme;
}

void Strengthen(Theme &theme) {
  theme.chart.line = theme.chart.muted;
  theme.chart.muted = theme.chart.ink;
  theme.chart.number = theme.chart.ink;
  theme.tint = theme.chart.card;
  theme.edge = theme.chart.ink;
}

Theme &Chosen() {
  static Theme theme = Theme::Light();
  return theme;
}

}  // namespace

const Theme &Theme::Current() { return Chosen(); }

void Theme::Apply(QApplication &application, const QString &skinFolder) {
  Apply(application, DesktopScheme::From({}, {}, application.palette()), skinFolder);
}

void Theme::Apply(QApplication &application, const DesktopScheme &scheme, const QString &skinFolder) {
  Chosen() = scheme.dark ? Dark() : Light();
  if (scheme.highContrast) Strengthen(Chosen());
  const Theme &theme = Current();
  QPalette palette = application.palette();
  palette.setColor(QPalette::Window, theme.chart.paper);
  palette.setColor(QPalette::Base, theme.chart.card);
  palette.setColor(QPalette::AlternateBase, theme.tint);
  palette.setColor(QPalette::Button, theme.chart.card);
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(role, theme.chart.ink);
    palette.setColor(QPalette::Disabled, role, theme.chart.muted);
  }
  palette.setColor(QPalette::PlaceholderText, theme.chart.muted);
  palette.setColor(QPalette::Highlight, theme.selection);
  palette.setColor(QPalette::HighlightedText, theme.chart.ink);
  palette.setColor(QPalette::Link, theme.chart.maroon);
  palette.setColor(QPalette::ToolTipBase, theme.chart.card);
  palette.setColor(QPalette::ToolTipText, theme.chart.ink);
  application.setPalette(palette);
  // The language's own sizes come with its pages; this is the face of everything around them.
  QApplication::setFont(SetFonts::Face(10));
  application.setStyleSheet(theme.StyleSheet(skinFolder));
}

// Roles of widgets are told by the dynamic property "role". Frames: card, rule, header, headercard, navrow; words: brand, title,
// head, caption, good, bad, warn, step, and value, which has the ink; buttons: primary, link, headlink; lists: headercard.
QString Theme::StyleSheet(const QString &skinFolder) const {
  QString sheet = QStringLiteral(R"(
    QMainWindow, QDialog { background: @paper; }
    QFrame[role="card"] { background: @card; border: 1px solid @line; border-radius: 10px; }
    QFrame[role="rule"] { background: @line; border: none; max-height: 1px; min-height: 1px; }
    QFrame[role="header"] { background: @card; border: none; border-bottom: 1px solid @line; }
    QFrame[role="headercard"] { background: @paper; border: 1px solid @line; border-radius: 10px; }
    QFrame[role="headercard"]:hover { background: @selection; }
    QFrame[role="navrow"] { background: transparent; border: none; border-left: 4px solid transparent; border-top-right-radius: 8px; border-bottom-right-radius: 8px; }
    QFrame[role="navrow"][chosen="true"] { background: @selection; border-left: 4px solid @saffron; }
    QLabel[role="brand"] { color: @maroon; font-size: 20pt; font-weight: bold; }
    QPushButton[role="headlink"] { background: transparent; border: 2px solid transparent; margin: -2px; color: @maroon; padding: 0; text-align: left; min-height: 20px; }
    QPushButton[role="headlink"]:hover { color: @accent; text-decoration: underline; }
    QPushButton[role="headlink"]:focus { border-color: @saffron; border-radius: 6px; padding: 0; color: @accent; text-decoration: underline; }
    QLabel[role="title"], QLabel[role="head"] { color: @maroon; }
    QLabel[role="caption"] { color: @muted; }
    QLabel[role="bad"] { color: @bad; }
    QLabel[role="good"] { color: @good; }
    QLabel[role="warn"] { color: @accent; }
    QLabel[role="step"] { color: @maroon; font-weight: bold; }
    QPushButton { background: @card; border: 1px solid @line; border-radius: 8px; padding: 7px 16px; min-height: 18px; }
    QPushButton:hover { background: @selection; }
    QPushButton:focus { border: 2px solid @saffron; padding: 6px 15px; }
    QPushButton:pressed { background: @line; }
    QPushButton:disabled { color: @muted; background: @paper; }
    QPushButton[role="primary"] { background: @maroon; color: @onmaroon; border-color: @maroon; }
    QPushButton[role="primary"]:hover { background: @saffron; border-color: @saffron; }
    QPushButton[role="primary"]:focus { border: 2px dashed @onmaroon; }
    QPushButton[role="primary"]:disabled { background: @line; border-color: @line; color: @muted; }
    QPushButton[role="link"] { background: transparent; border: 2px solid transparent; color: @maroon; padding: 0; text-decoration: underline; }
    QPushButton[role="link"]:focus { border-color: @saffron; border-radius: 6px; padding: 0; }
    QLineEdit, QComboBox, QSpinBox, QDateEdit, QPlainTextEdit, QTextEdit { background: @card; border: 1px solid @edge; border-radius: 6px;
      padding: 5px 8px; selection-background-color: @selection; selection-color: @ink; }
    QTextEdit { border-color: @line; }
    QLineEdit:focus, QComboBox:focus, QSpinBox:focus, QDateEdit:focus, QPlainTextEdit:focus { border: 2px solid @saffron; padding: 4px 7px; }
    QComboBox::drop-down { border: none; width: 22px; }
    QComboBox[role="headercard"] { background: @paper; border-color: @line; border-radius: 10px; padding: 4px 8px 4px 12px; }
    QComboBox[role="headercard"]:hover { background: @selection; }
    QComboBox[role="headercard"]:focus { border-color: @saffron; padding: 3px 7px 3px 11px; }
    QComboBox QAbstractItemView, QListView, QTreeView, QTableView { background: @card; border: 1px solid @line; outline: none;
      selection-background-color: @selection; selection-color: @ink; }
    QListView:focus, QTreeView:focus, QTableView:focus { border: 2px solid @saffron; }
    QListView::item, QTreeView::item { padding: 6px 8px; border-radius: 6px; }
    QListView::item:hover, QTreeView::item:hover { background: @tint; }
    QListView::item:selected, QTreeView::item:selected { background: @selection; color: @ink; }
    QHeaderView::section { background: @card; color: @muted; border: none; border-bottom: 2px solid @gold; padding: 6px 8px; }
    QScrollArea, QScrollArea > QWidget > QWidget { background: transparent; border: none; }
    PageScroll { background: transparent; border: @ring solid transparent; border-radius: @ringround; }
    PageScroll:focus { border-color: @saffron; }
    QScrollBar:vertical { background: transparent; width: 10px; margin: 0; }
    QScrollBar::handle:vertical { background: @line; border-radius: 5px; min-height: 30px; }
    QScrollBar::add-line, QScrollBar::sub-line { height: 0; width: 0; }
    QScrollBar:horizontal { background: transparent; height: 10px; margin: 0; }
    QScrollBar::handle:horizontal { background: @line; border-radius: 5px; min-width: 30px; }
    QProgressBar { background: @tint; border: 1px solid @line; border-radius: 6px; text-align: center; min-height: 12px; }
    QProgressBar::chunk { background: @saffron; border-radius: 5px; }
    QRadioButton, QCheckBox { spacing: 8px; padding: 3px; }
    QRadioButton:focus, QCheckBox:focus { border: 1px solid @saffron; border-radius: 6px; padding: 2px; }
    QRadioButton::indicator, QCheckBox::indicator, QTreeView::indicator { width: 14px; height: 14px; border: 1px solid @muted; background: @card; }
    QRadioButton::indicator { border-radius: 8px; }
    QCheckBox::indicator, QTreeView::indicator { border-radius: 4px; }
    QRadioButton::indicator:checked { border-color: @saffron;
      background: qradialgradient(cx:0.5, cy:0.5, radius:0.5, fx:0.5, fy:0.5, stop:0 @saffron, stop:0.5 @saffron, stop:0.6 @card, stop:1 @card); }
    QCheckBox::indicator:checked, QTreeView::indicator:checked { border-color: @saffron; background: @saffron; }
    QToolTip { background: @card; color: @ink; border: 1px solid @line; padding: 4px; }
    QTabBar::tab { padding: 8px 16px; border-bottom: 2px solid transparent; color: @muted; }
    QTabBar::tab:selected { color: @maroon; border-bottom: 2px solid @saffron; }
    QTabBar::tab:focus { border: 2px solid @saffron; border-radius: 6px; padding: 6px 14px 8px 14px; }
    QTabWidget::pane { border: 1px solid @line; border-radius: 10px; background: @card; }
  )");
  const std::pair<const char *, QColor> roles[] = {{"@paper", chart.paper},
                                                   {"@card", chart.card},
                                                   {"@line", chart.line},
                                                   {"@ink", chart.ink},
                                                   {"@muted", chart.muted},
                                                   {"@onmaroon", OnPrimary()},
                                                   {"@maroon", chart.maroon},
                                                   {"@saffron", chart.saffron},
                                                   {"@accent", chart.accent},
                                                   {"@gold", chart.gold},
                                                   {"@goodBack", goodBack},
                                                   {"@good", good},
                                                   {"@badBack", badBack},
                                                   {"@bad", bad},
                                                   {"@selection", selection},
                                                   {"@tint", tint},
                                                   {"@edge", edge}};
  if (!skinFolder.isEmpty()) {
    sheet += QStringLiteral(
                 "QComboBox::down-arrow { image: url(%1/ctlDown%2.svg); width: 16px; height: 16px; }"
                 "QCheckBox::indicator:checked, QTreeView::indicator:checked { background: @card; image: url(%1/ctlTick%2.svg); }")
                 .arg(skinFolder, dark ? QStringLiteral("-dark") : QString());
  }
  // One sheet for all pages: a sheet of its own would have each page's widgets dressed twice.
  sheet.replace(QLatin1String("@ringround"), QStringLiteral("%1px").arg(Grid::CardRadius + PageScroll::Ring));
  sheet.replace(QLatin1String("@ring"), QStringLiteral("%1px").arg(PageScroll::Ring));
  for (const auto &[role, colour] : roles) sheet.replace(QLatin1String(role), colour.name());
  return sheet;
}
