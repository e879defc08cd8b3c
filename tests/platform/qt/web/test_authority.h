#pragma once

#include "platform/qt/web/http_server.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace corvane::test {

/// A certificate authority that lives as long as a test program, and certificates of its own.
class TestAuthority {
public:
    /// None of these is a secret: they are made anew in every run.
    TestAuthority();

    QSslCertificate certificate() const;

    /// A server's identity for "DNS:name" or "IP:address", for so many days from now on; fewer than
    /// none, and it has expired.
    HttpServer::Identity issue(const QString &subject, int days = 2);
    /// One that vouches for itself.
    HttpServer::Identity selfSigned(const QString &subject);

private:
    void openssl(const QStringList &arguments);
    void write(const char *name, const QByteArray &text) const;
    QString path(const char *name) const;
    HttpServer::Identity identity(const char *certificate, const char *key) const;

    QTemporaryDir m_folder;
};

} // namespace corvane::test
