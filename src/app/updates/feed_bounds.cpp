#include "app/updates/feed_bounds.h"

namespace corvane::feed_bounds {

namespace {

/// Goes from tag to tag, as a reader would.
class Counter {
public:
    explicit Counter(QStringView feed)
        : m_rest(feed)
    {
    }

    bool holds()
    {
        while (m_isWithin) {
            const qsizetype open = m_rest.indexOf(u'<');
            if (open < 0)
                return true;
            m_rest = m_rest.mid(open);
            if (skips(u"<!--", u"-->") || skips(u"<![CDATA[", u"]]>") || skips(u"<?", u"?>"))
                continue;
            if (m_rest.startsWith(u"<!"))
                return false;
            else
                takeTag();
        }
        return false;
    }

private:
    /// Passes over what stands between these, if the first is here.
    bool skips(QStringView begin, QStringView end)
    {
        if (!m_rest.startsWith(begin))
            return false;
        const qsizetype at = m_rest.indexOf(end, begin.size());
        m_rest = at < 0 ? QStringView() : m_rest.mid(at + end.size());
        return true;
    }

    void takeTag()
    {
        int attributes = 0;
        QChar quote;
        qsizetype at = 1;
        for (; at < m_rest.size() && at <= longestTag; ++at) {
            const QChar c = m_rest.at(at);
            if (!quote.isNull()) {
                if (c == quote)
                    quote = QChar();
            } else if (c == u'"' || c == u'\'') {
                quote = c;
                ++attributes;
            } else if (c == u'>') {
                break;
            } else if (m_rest.mid(at).startsWith(u"xmlns")) {
                ++m_namespaces;
            }
        }
        const bool isClosed = at < m_rest.size() && m_rest.at(at) == u'>';
        if (m_rest.mid(1).startsWith(u'/'))
            --m_depth;
        else if (isClosed && m_rest.at(at - 1) != u'/')
            ++m_depth;
        m_isWithin = at <= longestTag && attributes <= mostAttributes && m_depth <= deepest
            && m_namespaces <= mostNamespaces;
        m_rest = m_rest.mid(at);
    }

    QStringView m_rest;
    int m_depth = 0;
    int m_namespaces = 0;
    bool m_isWithin = true;
};

} // namespace

bool holds(QStringView feed)
{
    return Counter(feed).holds();
}

} // namespace corvane::feed_bounds
