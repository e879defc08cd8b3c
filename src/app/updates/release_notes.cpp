#include "app/updates/release_notes.h"

#include "core/display_text.h"
#include "services/page_reader.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace corvane::release_notes {

namespace {

/// What a line of text is cut into before it is made harmless, which is done to short ones.
constexpr qsizetype pieceOfLine = 512;

/// "li" of "<li class=x>", "/li" of "</li>".
QString nameOfTag(QStringView inside)
{
    const auto *const first = inside.begin() + (inside.startsWith(u'/') ? 1 : 0);
    const auto *const end
        = std::find_if_not(first, inside.end(), [](QChar c) { return c.isLetterOrNumber(); });
    return inside.left(end - inside.begin()).toString().toLower();
}

bool beginsLine(const QString &tag)
{
    constexpr std::array lines
        = {u"br", u"p", u"div", u"ul", u"ol", u"tr", u"h1", u"h2", u"h3", u"h4", u"h5", u"h6"};
    const QStringView name = QStringView(tag).mid(tag.startsWith(u'/') ? 1 : 0);
    return std::ranges::any_of(lines, [name](const char16_t *line) { return name == line; });
}

/// Takes a text apart from its beginning to its end.
class Stripper {
public:
    explicit Stripper(QStringView html)
        : m_rest(html)
    {
    }

    QString strip()
    {
        while (!m_rest.isEmpty()) {
            const qsizetype open = m_rest.indexOf(u'<');
            m_text += m_rest.left(open < 0 ? m_rest.size() : open);
            if (open < 0)
                break;
            m_rest = m_rest.mid(open + 1);
            takeTag();
        }
        return m_text;
    }

private:
    void takeTag()
    {
        const bool canBeTag = !m_rest.isEmpty()
            && (m_rest.front().isLetter() || m_rest.front() == u'/' || m_rest.front() == u'!');
        if (!canBeTag || m_hasNoMoreEnds) {
            m_text += u'<';
            return;
        }
        if (m_rest.startsWith(u"!--"))
            return skipPast(u"-->");
        const qsizetype close = m_rest.indexOf(u'>');
        if (close < 0) {
            m_hasNoMoreEnds = true;
            m_text += u'<';
            return;
        }
        const QString tag = nameOfTag(m_rest.left(close));
        m_rest = m_rest.mid(close + 1);
        if (tag == u"script" || tag == u"style")
            skipPast(tag == u"script" ? u"</script>" : u"</style>");
        else if (tag == u"li")
            m_text += QStringLiteral("\n• ");
        else if (beginsLine(tag))
            m_text += u'\n';
    }

    void skipPast(QStringView end)
    {
        const qsizetype at = m_rest.indexOf(end, 0, Qt::CaseInsensitive);
        m_rest = at < 0 ? QStringView() : m_rest.mid(at + end.size());
    }

    QStringView m_rest;
    QString m_text;
    /// No '>' is left: it is not searched for again at every '<'.
    bool m_hasNoMoreEnds = false;
};

QString harmless(const QString &line)
{
    QString shown;
    for (qsizetype at = 0; at < line.size(); at += pieceOfLine)
        shown += displayText(line.mid(at, pieceOfLine));
    return shown.trimmed();
}

} // namespace

QString withoutMarkup(const QString &html)
{
    return page_reader::decode(Stripper(html.left(maximumCharacters)).strip());
}

QString shown(const QString &text)
{
    QStringList lines;
    for (const QString &line : text.left(maximumCharacters).split(u'\n')) {
        const QString readable = harmless(line);
        const bool wasEmpty = lines.isEmpty() || lines.constLast().isEmpty();
        if (!readable.isEmpty() || !wasEmpty)
            lines << readable;
    }
    return lines.join(u'\n').trimmed();
}

} // namespace corvane::release_notes
