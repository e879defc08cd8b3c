#include "platform/web/shown_address.h"

#include <QStringList>

#include <unicode/uidna.h>
#include <unicode/uset.h>
#include <unicode/uspoof.h>

#include <algorithm>
#include <array>
#include <memory>
#include <optional>

namespace corvane {

namespace {

// As names are, by RFC 1035.
constexpr qsizetype maximumNameLength = 255;
constexpr int maximumLabelLength = 64;

const QString encodedPrefix = QStringLiteral("xn--");

using Buffer = std::array<char16_t, 4 * maximumLabelLength>;

/// Unicode's tables, read once, when the first international name is seen.
class Judge {
public:
    Judge()
    {
        UErrorCode error = U_ZERO_ERROR;
        m_names.reset(uidna_openUTS46(UIDNA_NONTRANSITIONAL_TO_UNICODE | UIDNA_USE_STD3_RULES
                                          | UIDNA_CHECK_BIDI | UIDNA_CHECK_CONTEXTJ
                                          | UIDNA_CHECK_CONTEXTO,
                                      &error));
        m_checker.reset(uspoof_open(&error));
        const std::unique_ptr<USet, decltype(&uset_close)> allowed(uset_openEmpty(), &uset_close);
        if (U_SUCCESS(error)) {
            uset_addAll(allowed.get(), uspoof_getRecommendedSet(&error));
            uset_addAll(allowed.get(), uspoof_getInclusionSet(&error));
            uspoof_setChecks(m_checker.get(), USPOOF_ALL_CHECKS, &error);
            uspoof_setAllowedChars(m_checker.get(), allowed.get(), &error);
            uspoof_setRestrictionLevel(m_checker.get(), USPOOF_HIGHLY_RESTRICTIVE);
        }
        m_isReady = U_SUCCESS(error);
    }

    /// What a label stands for, where it stands for something that is a name.
    std::optional<QString> decoded(const QString &label) const
    {
        Buffer buffer{};
        UErrorCode error = U_ZERO_ERROR;
        UIDNAInfo info = UIDNA_INFO_INITIALIZER;
        if (!m_isReady || label.size() > maximumLabelLength)
            return std::nullopt;
        const int length = uidna_labelToUnicode(
            m_names.get(), reinterpret_cast<const char16_t *>(label.utf16()),
            static_cast<int>(label.size()), buffer.data(), buffer.size(), &info, &error);
        if (U_FAILURE(error) || info.errors != 0)
            return std::nullopt;
        return QString::fromUtf16(buffer.data(), length);
    }

    bool isOfOneHand(const QString &text) const
    {
        UErrorCode error = U_ZERO_ERROR;
        const int found
            = uspoof_check(m_checker.get(), reinterpret_cast<const char16_t *>(text.utf16()),
                           static_cast<int>(text.size()), nullptr, &error);
        return U_SUCCESS(error) && (found & USPOOF_ALL_CHECKS) == 0;
    }

    /// The same for all texts that look alike.
    QString look(const QString &text) const
    {
        Buffer buffer{};
        UErrorCode error = U_ZERO_ERROR;
        const int length = uspoof_getSkeleton(
            m_checker.get(), 0, reinterpret_cast<const char16_t *>(text.utf16()),
            static_cast<int>(text.size()), buffer.data(), buffer.size(), &error);
        return U_SUCCESS(error) ? QString::fromUtf16(buffer.data(), length) : QString();
    }

private:
    std::unique_ptr<UIDNA, decltype(&uidna_close)> m_names{nullptr, &uidna_close};
    std::unique_ptr<USpoofChecker, decltype(&uspoof_close)> m_checker{nullptr, &uspoof_close};
    bool m_isReady = false;
};

bool isAscii(QChar character)
{
    return character.unicode() < 0x80;
}

/// What stands between the parts of an address, or within no name at all.
bool isSign(QChar character)
{
    return isAscii(character) && !character.isLetterOrNumber() && character != QLatin1Char('-');
}

/// Ligatures are letters of their own in some languages, and nobody takes them for the two letters
/// that the tables say.
bool hasLigature(const QString &text)
{
    return text.contains(QChar(0x00e6)) || text.contains(QChar(0x0153));
}

/// The label to be shown: what it stands for, or itself. `domain` is what the name ends in, where
/// that is no plain text.
QString shownLabel(const QString &label, const QString &domain)
{
    static const Judge judge;
    const auto text = judge.decoded(label);
    if (!text || !judge.isOfOneHand(*text))
        return label;
    const QString look = judge.look(*text);
    const bool looksPlain = std::ranges::all_of(look, isAscii) && !hasLigature(*text);
    const bool isAmongItsOwn = !domain.isEmpty() && judge.isOfOneHand(*text + domain);
    if (look.isEmpty() || std::ranges::any_of(look, isSign) || (looksPlain && !isAmongItsOwn))
        return label;
    return *text;
}

} // namespace

QString shownHost(const QUrl &url)
{
    const QString host = url.host(QUrl::FullyEncoded);
    if (!host.contains(encodedPrefix) || host.size() > maximumNameLength)
        return host;
    QStringList labels = host.split(QLatin1Char('.'));
    QString domain;
    for (qsizetype i = labels.size() - 1; i >= 0; --i) {
        QString &label = labels[i];
        if (label.startsWith(encodedPrefix))
            label = shownLabel(label, domain);
        if (i == labels.size() - 1 && !std::ranges::all_of(label, isAscii))
            domain = label;
    }
    return labels.join(QLatin1Char('.'));
}

QString shownAddress(const QUrl &url)
{
    QString address = url.toString(QUrl::FullyEncoded);
    const QString host = url.host(QUrl::FullyEncoded);
    const QString shown = shownHost(url);
    if (shown != host) {
        const qsizetype user = url.userInfo(QUrl::FullyEncoded).size();
        address.replace(address.indexOf(host, url.scheme().size() + user), host.size(), shown);
    }
    return address;
}

} // namespace corvane
