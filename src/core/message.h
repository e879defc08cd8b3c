#pragma once

#include <QString>

namespace corvane {

/// A short message for the user, such as "Link copied".
struct Message {
    enum class Kind {
        PathCopied,
        ImageCopied,
        TextCopied,
        LinkCopied,
        DataUriCopied,
        /// `count` of them.
        ItemsCopied,
        Kept,
        /// Nothing that was dragged arrived.
        NotTaken,
        /// `count` of `whole` that were dragged did not arrive.
        SomeNotTaken,
        FileIsGone,
    };

    Kind kind = Kind::Kept;
    qsizetype count = 0;
    qsizetype whole = 0;

    /// In the user's language.
    QString text() const;

    friend bool operator==(const Message &, const Message &) = default;
};

} // namespace corvane
