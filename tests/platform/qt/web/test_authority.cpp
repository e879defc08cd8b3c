#include "platform/qt/web/test_authority.h"

#include <QFile>
#include <QProcess>

namespace corvane::test {

using namespace Qt::StringLiterals;

namespace {

const QStringList newKey{u"-newkey"_s, u"ec"_s, u"-pkeyopt"_s, u"ec_paramgen_curve:prime256v1"_s,
                         u"-nodes"_s};

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

TestAuthority::TestAuthority()
{
    openssl(QStringList{u"req"_s, u"-x509"_s} + newKey
            + QStringList{u"-keyout"_s, path("ca.key"), u"-out"_s, path("ca.pem"), u"-subj"_s,
                          u"/CN=Authority of a test"_s, u"-days"_s, u"2"_s});
}

QSslCertificate TestAuthority::certificate() const
{
    return QSslCertificate(contents(path("ca.pem")));
}

HttpServer::Identity TestAuthority::issue(const QString &subject, int days)
{
    openssl(QStringList{u"req"_s} + newKey
            + QStringList{u"-keyout"_s, path("leaf.key"), u"-out"_s, path("leaf.csr"), u"-subj"_s,
                          u"/CN=Server of a test"_s, u"-addext"_s,
                          QString(u"subjectAltName="_s + subject)});
    openssl({u"x509"_s, u"-req"_s, u"-in"_s, path("leaf.csr"), u"-CA"_s, path("ca.pem"),
             u"-CAkey"_s, path("ca.key"), u"-CAcreateserial"_s, u"-copy_extensions"_s, u"copy"_s,
             u"-days"_s, QString::number(days), u"-out"_s, path("leaf.pem")});
    return identity("leaf.pem", "leaf.key");
}

HttpServer::Identity TestAuthority::selfSigned(const QString &subject)
{
    openssl(QStringList{u"req"_s, u"-x509"_s} + newKey
            + QStringList{u"-keyout"_s, path("own.key"), u"-out"_s, path("own.pem"), u"-subj"_s,
                          u"/CN=Server of a test"_s, u"-addext"_s,
                          QString(u"subjectAltName="_s + subject), u"-days"_s, u"2"_s});
    return identity("own.pem", "own.key");
}

void TestAuthority::openssl(const QStringList &arguments)
{
    QProcess process;
    process.start(u"openssl"_s, arguments);
    process.waitForFinished();
    ASSERT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
}

QString TestAuthority::path(const char *name) const
{
    return m_folder.filePath(QString::fromLatin1(name));
}

HttpServer::Identity TestAuthority::identity(const char *certificate, const char *key) const
{
    return {QSslCertificate(contents(path(certificate))), QSslKey(contents(path(key)), QSsl::Ec)};
}

} // namespace corvane::test
