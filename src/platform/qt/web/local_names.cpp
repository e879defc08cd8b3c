#include "platform/qt/web/local_names.h"

#include <algorithm>
#include <array>

namespace corvane::local_names {

namespace {

bool isOrIsBelow(QStringView host, QStringView domain)
{
    if (host.endsWith(u'.'))
        host.chop(1);
    if (!host.endsWith(domain, Qt::CaseInsensitive))
        return false;
    return host.size() == domain.size() || host.chopped(domain.size()).endsWith(u'.');
}

} // namespace

bool isThisMachine(QStringView host)
{
    return isOrIsBelow(host, u"localhost");
}

bool isNearby(QStringView host)
{
    constexpr std::array<QStringView, 10> domains = {
        u"local",       u"internal", u"home.arpa", u"lan",  u"home",
        u"localdomain", u"intranet", u"private",   u"corp", u"localhost",
    };
    const bool isOneLabel = !host.chopped(host.endsWith(u'.') ? 1 : 0).contains(u'.');
    return isOneLabel || std::ranges::any_of(domains, [host](QStringView domain) {
               return isOrIsBelow(host, domain);
           });
}

bool isOnion(QStringView host)
{
    return isOrIsBelow(host, u"onion");
}

} // namespace corvane::local_names
