// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "WaitAnimation.h"

#include <QtEndian>

#include <initializer_list>

namespace {

constexpr quint32 Width = 4;
constexpr quint32 Height = 4;
constexpr quint32 FrameBytes = Width * Height * 3;
constexpr quint32 MicrosecondsPerFrame = 100000;

QByteArray Words(std::initializer_list<quint32> words) {
  QByteArray bytes;
  for (const quint32 word : words) {
    char raw[4];
    qToLittleEndian(word, raw);
    bytes.append(raw, 4);
  }
  return bytes;
}

QByteArray Chunk(const char *id, const QByteArray &content) {
  return QByteArray(id, 4) + Words({static_cast<quint32>(content.size())}) + content;
}

QByteArray List(const char *id, const QByteArray &content) { return Chunk("LIST", QByteArray(id, 4) + content); }

}  // namespace

QByteArray WaitAnimation::Avi() {
  // Main header: rate, bytes a second, padding, flags, frames, first frame, streams, buffer, width, height, four reserved words.
  const QByteArray mainHeader =
      Chunk("avih", Words({MicrosecondsPerFrame, FrameBytes * 10, 0, 0, 1, 0, 1, FrameBytes, Width, Height, 0, 0, 0, 0}));
  // Stream header: flags, priority and language, initial frames, scale, rate, start, length, buffer, quality, sample size, frame.
  const QByteArray streamHeader =
      Chunk("strh", QByteArray("vidsDIB ", 8) + Words({0, 0, 0, 1, 10, 0, 1, FrameBytes, 0xFFFFFFFFU, 0, 0, Width | Height << 16}));
  // Bitmap header: size, width, height, one plane of 24 bits, no compression, bytes, then four words without meaning here.
  const QByteArray streamFormat = Chunk("strf", Words({40, Width, Height, 1U | 24U << 16, 0, FrameBytes, 0, 0, 0, 0}));
  const QByteArray headers = List("hdrl", mainHeader + List("strl", streamHeader + streamFormat));
  const QByteArray frames = List("movi", Chunk("00db", QByteArray(FrameBytes, '\xF7')));
  return Chunk("RIFF", QByteArray("AVI ", 4) + headers + frames);
}
