// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QColor>
#include <QImage>
#include <QRect>

namespace Contrast {

// By the luminance of the web's accessibility guidelines: 1 for the same colour to 21 for black on white.
double Between(const QColor &a, const QColor &b);

// The colour that fills most of the room; room in pixels of the image.
QColor Ground(const QImage &image, const QRect &room);

// The strongest contrast of a pixel of the room with the ground.
double Strongest(const QImage &image, const QRect &room, const QColor &ground);

// The colour as it is seen on the ground when it is not opaque.
QColor Over(const QColor &colour, const QColor &ground);

}  // namespace Contrast
