#pragma once

#include "platform/pasteboard/pasteboard_form.h"
#include "platform/x11/base/x11_connection.h"

#include <QHash>

#include <optional>
#include <vector>

namespace corvane {

/// What a drag of ours offers, under all names by which X11 targets ask for it. Qt also announces
/// old names for text and links by itself, so these must be answered, too. The connection must
/// outlive it.
class X11DragForms {
public:
    struct Answer {
        xcb_atom_t type = XCB_NONE;
        QByteArray bytes;
        /// The places of the writers whose contents are in these bytes completely.
        QList<qsizetype> holds;
    };

    X11DragForms(X11Connection &connection, PasteboardForms forms);

    std::vector<xcb_atom_t> targets() const;
    /// None for what is not offered.
    std::optional<Answer> answerTo(xcb_atom_t target) const;

private:
    enum class Spelling {
        AsItIs,
        /// Characters that Latin-1 does not have become question marks, and the text then does not
        /// count as held (`Answer::holds`).
        Latin1,
        /// In Latin-1 if that has all characters, else in UTF-8.
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
