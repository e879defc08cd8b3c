#pragma once

#include "platform/pasteboard/pasteboard_form.h"
#include "platform/x11/base/x11_connection.h"

#include <QHash>

#include <optional>
#include <vector>

namespace corvane {

/// What a drag of ours offers, under every name by which targets on X11 ask for it. Qt announces
/// the old names for text and links by itself, so each of them has to be answered. The connection
/// must outlive it.
class X11DragForms {
public:
    struct Answer {
        xcb_atom_t type = XCB_NONE;
        QByteArray bytes;
        /// The places of the writers whose whole contents are in these bytes.
        QList<qsizetype> holds;
    };

    X11DragForms(X11Connection &connection, PasteboardForms forms);

    std::vector<xcb_atom_t> targets() const;
    /// None for what is not offered.
    std::optional<Answer> answerTo(xcb_atom_t target) const;

private:
    enum class Spelling {
        AsItIs,
        /// What Latin-1 has no character for becomes a question mark, and the text is then held no
        /// longer.
        Latin1,
        /// In Latin-1 where it can say everything.
        OwnersChoice,
        /// The first address and a title, in UTF-16.
        MozUrl,
    };
    struct Name {
        std::size_t form;
        Spelling spelling;
    };

    void addName(const char *name, std::size_t form, Spelling spelling);
    Answer inLatin1(const PasteboardForm &text) const;
    Answer asMozUrl(const PasteboardForm &uriList, xcb_atom_t target) const;

    X11Connection *m_connection;
    PasteboardForms m_forms;
    QHash<xcb_atom_t, Name> m_names;
};

} // namespace corvane
