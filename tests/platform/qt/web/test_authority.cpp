#include "platform/qt/web/test_authority.h"

#include <QDateTime>
#include <QFile>
#include <QProcess>

#include <algorithm>

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
    // As an authority does it: the simpler command signs nothing that has expired already.
    write("ca.conf",
          "[ca]\ndefault_ca = own\n"
          "[own]\ndefault_md = sha256\npolicy = any\ncopy_extensions = copy\n"
          "database = index.txt\nserial = serial\n"
          "[any]\ncommonName = supplied\n");
    write("index.txt", {});
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const auto date
        = [&](int fromToday) { return now.addDays(fromToday).toString(u"yyyyMMddHHmmss'Z'"_s); };
    openssl({u"ca"_s,       u"-batch"_s,     u"-notext"_s,    u"-create_serial"_s,
             u"-config"_s,  path("ca.conf"), u"-cert"_s,      path("ca.pem"),
             u"-keyfile"_s, path("ca.key"),  u"-in"_s,        path("leaf.csr"),
             u"-outdir"_s,  m_folder.path(), u"-startdate"_s, date(std::min(days, 0) - 1),
             u"-enddate"_s, date(days),      u"-out"_s,       path("leaf.pem")});
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
    process.setWorkingDirectory(m_folder.path());
    process.start(u"openssl"_s, arguments);
    process.waitForFinished();
    ASSERT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
}

void TestAuthority::write(const char *name, const QByteArray &text) const
{
    QFile file(path(name));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write(text);
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
