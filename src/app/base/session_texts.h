#pragma once

#include "platform/desktop/abilities.h"

#include <QList>
#include <QString>
#include <QStringList>

/// What people are told of a session's abilities: in the preferences, in the guide, and in the
/// README's table of what works where.
namespace corvane::session_texts {

/// What is missing, why, and what to do instead; empty where nothing is missing.
QString limit(const Ability<Drags> &drags);
QString limit(const Ability<TopEdge> &topEdge);
QString limit(const Ability<ClicksElsewhere> &clicks);
QString limit(const Ability<ShortcutChoice> &choice);
QString limit(const Ability<KeepingKey> &key);

/// Those that are not empty.
QStringList limits(const Abilities &abilities);

/// A row of the README's table, in its markup.
struct TableRow {
    QString ability;
    QString howFar;
};
/// How much is said where nothing is missing.
enum class TableStyle {
    Detailed,
    Brief,
};
/// In the table's order.
QList<TableRow> tableRows(const Abilities &abilities, TableStyle style = TableStyle::Detailed);

} // namespace corvane::session_texts
