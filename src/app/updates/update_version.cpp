#include "app/updates/update_version.h"

#include <algorithm>

namespace corvane {

namespace {

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

std::strong_ordering compareNumbers(const QString &a, const QString &b)
{
    if (a.size() != b.size())
        return a.size() <=> b.size();
    return a.compare(b) <=> 0;
}

} // namespace

std::optional<UpdateVersion> UpdateVersion::fromText(const QString &text)
{
    if (text.size() > longestText)
        return std::nullopt;
    UpdateVersion version;
    version.m_text = text;
    for (const QString &part : text.split(u'.')) {
        if (part.isEmpty() || !std::ranges::all_of(part, isDigit))
            return std::nullopt;
        const auto firstDigit = std::ranges::find_if(part, [](QChar c) { return c != u'0'; });
        version.m_numbers << part.mid(firstDigit - part.begin());
    }
    return version;
}

std::strong_ordering operator<=>(const UpdateVersion &a, const UpdateVersion &b)
{
    for (qsizetype i = 0; i < std::max(a.m_numbers.size(), b.m_numbers.size()); ++i) {
        const auto order = compareNumbers(a.m_numbers.value(i), b.m_numbers.value(i));
        if (order != std::strong_ordering::equal)
            return order;
    }
    return std::strong_ordering::equal;
}

} // namespace corvane
