// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "platform/gui/PdfFile.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>

#include "platform/Errors.h"
#include "platform/FileTools.h"
#include "platform/ReportError.h"

namespace {

// A text string of the format: UTF-16 with its mark, in hexadecimal, which needs no escapes.
QByteArray PdfText(const QString &text) {
  QByteArray utf16("\xFE\xFF");
  for (const QChar c : text) {
    utf16.append(static_cast<char>(c.unicode() >> 8));
    utf16.append(static_cast<char>(c.unicode() & 0xFF));
  }
  return '<' + utf16.toHex() + '>';
}

// The number behind the last occurrence of a name, or -1.
qint64 LastNumber(const QByteArray &pdf, const QByteArray &name) {
  const qsizetype at = pdf.lastIndexOf(name);
  if (at < 0) return -1;
  const QRegularExpressionMatch match =
      QRegularExpression(QStringLiteral("\\d+")).match(QString::fromLatin1(pdf.mid(at + name.size(), 24)));
  return match.hasMatch() ? match.captured().toLongLong() : -1;
}

}  // namespace

PdfFile::PdfFile(const QPageSize &paper) : writer(&content) {
  content.open(QIODevice::WriteOnly);
  writer.setPageSize(paper);
  writer.setPageMargins(QMarginsF());
  writer.setCreator(QCoreApplication::applicationName());
}

QPageSize PdfFile::UsualPaper() {
  const QLocale::Territory country = QLocale::system().territory();
  return QPageSize(country == QLocale::UnitedStates || country == QLocale::Canada ? QPageSize::Letter : QPageSize::A4);
}

QByteArray PdfFile::WithInfo(const QByteArray &pdf, const DocumentInfo &info) {
  const qint64 size = LastNumber(pdf, "/Size "), root = LastNumber(pdf, "/Root "), previous = LastNumber(pdf, "startxref");
  if (size < 0 || root < 0 || previous < 0)
    throw ReportError(QCoreApplication::translate("PdfFile", "The PDF could not be finished. Please try again."));
  const QByteArray number = QByteArray::number(size);
  QByteArray result = pdf;
  if (!result.endsWith('\n')) result += '\n';
  const qsizetype object = result.size();
  result += number + " 0 obj\n<<\n/Title " + PdfText(info.title) + "\n/Author " + PdfText(info.author) + "\n/Subject " +
            PdfText(info.subject) + "\n/Keywords " + PdfText(info.keywords) + "\n/Creator " + PdfText(info.title) +
            "\n/CreationDate (D:" + QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMddHHmmss")).toLatin1() +
            "Z)\n>>\nendobj\n";
  const qsizetype table = result.size();
  result += "xref\n" + number + " 1\n" + QByteArray::number(object).rightJustified(10, '0') + " 00000 n \ntrailer\n<<\n/Size " +
            QByteArray::number(size + 1) + "\n/Root " + QByteArray::number(root) + " 0 R\n/Info " + number + " 0 R\n/Prev " +
            QByteArray::number(previous) + "\n>>\nstartxref\n" + QByteArray::number(table) + "\n%%EOF\n";
  return result;
}

void PdfFile::CheckWritable(const QString &path) {
  const QFileInfo file(path);
  const QFileInfo folder(file.absolutePath());
  if (file.isDir() || (file.exists() && !file.isWritable()) || (folder.exists() && !folder.isWritable()))
    throw StoreError(QCoreApplication::translate(
                         "PdfFile", "The file \"%1\" cannot be written. Please choose a folder and a file that you may write to.")
                         .arg(QDir::toNativeSeparators(path)),
                     StoreError::Kind::ReadOnly);
}

void PdfFile::Store(const QString &path, const DocumentInfo &info) {
  content.close();
  WriteWholeFile(path, WithInfo(content.data(), info));
}
