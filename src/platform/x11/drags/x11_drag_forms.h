#pragma once

#include "platform/pasteboard/named_forms.h"
#include "platform/x11/base/x11_connection.h"

#include <QHash>

#include <optional>
#include <vector>

namespace corvane {

/// What a drag of ours offers, under the atoms of its names. Qt also announces old names for text
/// and links by itself, in XdndTypeList, so these must be answered, too: there for X11's own
/// programs, to which `STRING` is Latin-1. Compositors read TARGETS instead, and mutter asks for
/// `STRING`, where it is there, when a Wayland program asks for text/plain, and hands Latin-1 on as
/// UTF-8. The connection must outlive it.
class X11DragForms {
public:
    struct Answer {
        xcb_atom_t type = XCB_NONE;
        QByteArray bytes;
        /// The places of the writers whose contents are in these bytes completely.
        QList<qsizetype> holds;
    };

    X11DragForms(X11Connection &connection, PasteboardForms forms);

    /// The names that are offered, in the order of the forms, the most exact text first: there are
    /// programs, and compositors between, that take the first they know.
    const std::vector<xcb_atom_t> &targets() const { return m_targets; }
    /// None for what is not offered.
    std::optional<Answer> answerTo(xcb_atom_t target) const;

private:
    X11Connection *m_connection;
    NamedForms m_forms;
    std::vector<xcb_atom_t> m_targets;
    QHash<xcb_atom_t, QString> m_names;
};

} // namespace corvane
