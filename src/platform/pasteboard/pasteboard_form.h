#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <vector>

namespace corvane {

/// One form in which contents are handed over: a type, and the bytes of that type.
struct PasteboardForm {
    QString type;
    QByteArray bytes;
    /// The places of the writers whose contents are in `bytes` completely, ascending.
    QList<qsizetype> holds;
};
using PasteboardForms = std::vector<PasteboardForm>;

} // namespace corvane
