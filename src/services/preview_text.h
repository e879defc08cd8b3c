#pragma once

#include <QByteArray>
#include <QMimeType>
#include <QString>

/// Texts as previews show them.
namespace corvane::preview_text {

/// Only the beginning of a longer file is read.
inline constexpr qint64 maximumBytes = 10'000'000;
/// Longer lines are broken: a view lays out whole lines, and a file may be a single one.
inline constexpr qsizetype maximumLineLength = 2'000;
/// Each line costs a view some hundred bytes.
inline constexpr qsizetype maximumLines = 200'000;

/// Whether files of the type are read as text: what descends from text/plain, every text/..., and
/// formats such as JSON and XML.
bool isText(const QMimeType &type);
/// Whether columns and indentation matter in files of the type: code, data and logs.
bool isMonospaced(const QMimeType &type, const QString &name);

struct Decoded {
    QString text;
    /// Not all of the bytes are in it.
    bool isCut = false;
};

/// Bytes as text that can be shown: UTF-8, UTF-16 and UTF-32 by their mark, UTF-8 without one when
/// that is what it is, else Latin-1. `isCut` says that the bytes end before the file does. Control
/// characters are made harmless, line ends the same, long lines broken, and lines beyond
/// `maximumLines` left away.
Decoded decode(const QByteArray &bytes, bool isCut);

} // namespace corvane::preview_text
