#pragma once

#include "platform/pasteboard/pasteboard_form.h"

#include <QHash>
#include <QStringList>

#include <optional>

namespace corvane {

/// What a drag of ours offers, under all names by which targets ask for it: texts and addresses
/// have old names beside their types.
///
/// Some programs read `STRING` and `TEXT` as Latin-1 and others as UTF-8, so these are offered only
/// with a text that is the same in both, though answered to those who ask for them all the same.
class NamedForms {
public:
    struct Answer {
        /// What the bytes are: the name that was asked for, but for those that leave it to us.
        QString type;
        QByteArray bytes;
        /// The places of the writers whose contents are in these bytes completely.
        QList<qsizetype> holds;
    };

    NamedForms() = default;
    explicit NamedForms(PasteboardForms forms);

    /// Those that are offered, in the order of the forms, each followed by its other names.
    const QStringList &names() const { return m_names; }
    /// These, and those that are answered although they are not offered; in no order.
    QStringList answeredNames() const { return m_meanings.keys(); }
    /// None for what is not there.
    std::optional<Answer> answerTo(const QString &name) const;

private:
    enum class Offered { Yes, No };
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

    void addName(const QString &name, std::size_t form, Spelling spelling,
                 Offered offered = Offered::Yes);
    static Answer inLatin1(const PasteboardForm &text);
    static Answer asMozUrl(const PasteboardForm &uriList);

    PasteboardForms m_forms;
    QStringList m_names;
    QHash<QString, Name> m_meanings;
};

} // namespace corvane
