#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QHash>

/// The format of the desktop's text files about programs: groups of keys and values.
namespace corvane::desktop_entry {

/// A group's keys with their values, escapes undone. A key that is repeated has its last value;
/// values in other languages stand under keys of their own, "Name[de]".
QHash<QByteArray, QByteArray> group(const QByteArray &contents, const QByteArray &name);

/// A command as its arguments, their quoting undone and their field codes left in; empty when a
/// quote is left open.
QByteArrayList arguments(const QByteArray &command);

/// The parts of a list, without those that are empty.
QByteArrayList list(const QByteArray &value);

} // namespace corvane::desktop_entry
