// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QString>

class ImageButton;

// The pictures of the skin, from the folder EPHE/SKIN, in the colours of the theme. A picture that is missing is an
// empty icon: the button that wanted it shows its text.
namespace Skin {

// OnPrimary: in the one colour of the words on a primary button.
enum class State { Normal, Hover, Down, OnPrimary };

// folder: the full path of EPHE/SKIN.
void SetFolder(const QString &folder);

// name: the element's name, such as "flpCharts" or "page09".
QIcon Picture(const QString &name, State state = State::Normal);

// A drawing from elsewhere, in the colours of the theme too. path: of the SVG.
QIcon PictureAt(const QString &path);

// The button's three pictures of the name.
void Dress(ImageButton &button, const QString &name);

// The drawing as a pixmap of a size in device-independent pixels, for labels.
QPixmap Pixmap(const QString &name, const QSize &size, qreal devicePixelRatio);

}  // namespace Skin
