#pragma once

#include <QString>
#include <QUrl>

namespace corvane {

/// A host's name as it may be shown to somebody who decides by it. Never for connecting.
///
/// An international name is shown in its own letters only where it can be taken for no other one;
/// else in the form that goes over the wire, "xn--...". Judged label by label by Unicode's rules
/// for names (UTS 46) and its figures of what looks alike (UTS 39): only characters that are meant
/// for names; only scripts that people write together; nothing that looks as if it were written in
/// plain letters and digits, unless the name ends in a domain of its own script; nothing that looks
/// like one of the signs that divide an address. Bounded: a longer name than there can be is left
/// as it is. Any thread.
QString shownHost(const QUrl &url);

/// The whole address with its host in that form, and all else encoded.
QString shownAddress(const QUrl &url);

} // namespace corvane
