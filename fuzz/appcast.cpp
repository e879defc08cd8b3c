// A feed of any bytes, up to the length at which it is refused: what is offered of it was stated
// and fits, and what is shown of it is bounded and harmless. Statements are signed here, so that
// what stands behind the signature is reached.

#include "app/updates/appcast.h"

#include "app/updates/release_notes.h"
#include "app/updates/update_choice.h"

#include <QTimeZone>

#include <sodium.h>

#include <array>
#include <cstdint>
#include <cstdlib>

using namespace corvane;

namespace {

struct Signer {
    Signer()
    {
        const std::array<unsigned char, crypto_sign_SEEDBYTES> seed = {};
        if (::sodium_init() < 0)
            std::abort();
        ::crypto_sign_seed_keypair(open.data(), secret.data(), seed.data());
    }
    QByteArray sign(const QByteArray &bytes) const
    {
        QByteArray signature(crypto_sign_BYTES, '\0');
        ::crypto_sign_detached(reinterpret_cast<unsigned char *>(signature.data()), nullptr,
                               reinterpret_cast<const unsigned char *>(bytes.constData()),
                               static_cast<unsigned long long>(bytes.size()), secret.data());
        return signature;
    }
    UpdateKey key() const
    {
        return *UpdateKey::fromBytes(
            {reinterpret_cast<const char *>(open.data()), crypto_sign_PUBLICKEYBYTES});
    }

    std::array<unsigned char, crypto_sign_PUBLICKEYBYTES> open = {};
    std::array<unsigned char, crypto_sign_SECRETKEYBYTES> secret = {};
};

void check(const UpdateOffer &offer, const UpdateAudience &audience)
{
    const QString shown = offer.notes + offer.release.statement().shortVersion;
    for (const QChar c : shown) {
        if ((c < u' ' && c != u'\n') || c == u'\u202E')
            std::abort();
    }
    const ReleaseStatement &statement = offer.release.statement();
    if (offer.notes.size() > release_notes::maximumCharacters
        || statement.version <= *audience.build
        || statement.architecture != audience.system.architecture
        || statement.channel != ReleaseStatement::stable || offer.fileSignature.isEmpty())
        std::abort();
}

/// A feed of the longest length that is read, with the input in it as often as there is room.
QByteArray longest(const QByteArray &piece)
{
    const QByteArray head = QByteArray("<rss xmlns:sparkle='") + appcast::sparkleNamespace
        + "' xmlns:corvane='" + appcast::statementNamespace + "'><channel>";
    const QByteArray tail = "</channel></rss>";
    const qsizetype room = appcast::maximumBytes - head.size() - tail.size();
    return head + piece.repeated(room / piece.size()) + tail;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const Signer signer;
    const QByteArray feed(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    // Long feeds take as long as a hundred short ones, so that few inputs become one.
    constexpr int oneIn = 128;
    if (size > 0 && size < 4096 && qChecksum(feed) % oneIn == 0)
        appcast::read(longest(feed));
    auto items = appcast::read(feed);
    if (!items)
        return 0;
    qsizetype statements = 0;
    for (ClaimedRelease &item : *items) {
        statements += item.statements.size();
        for (ClaimedStatement &claim : item.statements)
            claim.signature = signer.sign(claim.bytes);
    }
    if (feed.size() > appcast::maximumBytes || items->size() > appcast::maximumItems
        || statements > appcast::maximumStatements)
        std::abort();
    const UpdateAudience audience{
        {QStringLiteral("x86_64"), QStringLiteral("debian"), QStringLiteral("12")},
        UpdateVersion::fromText(QStringLiteral("10")),
        UpdateVersion::fromText(QStringLiteral("1.0")),
        false};
    const QDateTime now({2026, 11, 22}, {12, 0}, QTimeZone::utc());
    const UpdateTrust trust(signer.key(), QStringLiteral("example.corvane.Corvane"));
    const UpdateChoice choice = update_choice::choose(*items, audience, trust, now);
    if ((choice.verdict == UpdateChoice::Verdict::Newer) != choice.offer.has_value())
        std::abort();
    if (choice.offer)
        check(*choice.offer, audience);
    // The same feed once more never goes back behind itself.
    const UpdateChoice again = update_choice::choose(*items, audience, choice.trust, now);
    if (again.verdict == UpdateChoice::Verdict::WentBack)
        std::abort();
    return 0;
}
