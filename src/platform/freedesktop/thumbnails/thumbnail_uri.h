#pragma once

#include <QByteArray>

namespace corvane {

/// The address by which the desktop's programs know a file's thumbnail, from the file's absolute
/// path as bytes. Two spellings would be two thumbnails, so it follows what most programs write:
/// doubled slashes, "." and ".." resolved by name, and every byte escaped in upper-case digits but
/// letters, digits, and -_.!~*'()/&=:@+$,
QByteArray thumbnailUri(const QByteArray &path);

} // namespace corvane
