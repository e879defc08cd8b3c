#pragma once

#include "app/updates/update_key.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <utility>

namespace corvane {

/// The private half of the key that releases are signed with. Lives in memory alone.
class SigningKey {
public:
    /// From a file as `openssl genpkey -algorithm ed25519` makes it, which nobody else may read.
    /// None, and the reason, where that cannot be.
    static std::optional<SigningKey> fromFile(const QString &path, QString &error);

    QByteArray sign(const QByteArray &message) const;
    UpdateKey publicHalf() const { return m_public; }

private:
    SigningKey(QByteArray secret, UpdateKey publicHalf)
        : m_secret(std::move(secret))
        , m_public(std::move(publicHalf))
    {
    }

    QByteArray m_secret;
    UpdateKey m_public;
};

} // namespace corvane
