#pragma once

#include <QByteArray>
#include <QString>

#include <span>

/// What the bytes of an AppImage say about it.
namespace corvane::app_image_bytes {

/// A line that stands uncompressed in each AppImage of a program, behind its file system, where
/// the format leaves room for what others add.
QByteArray mark(const QString &application);

/// Whether these are an AppImage of format 1 or 2, for the architecture ("x86_64", "arm64"), that
/// carries the program's mark. Takes time linear in the bytes.
bool isOf(std::span<const unsigned char> bytes, const QString &application,
          const QString &architecture);

} // namespace corvane::app_image_bytes
