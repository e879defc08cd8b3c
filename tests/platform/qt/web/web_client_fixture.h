#pragma once

#include "e2e/desktop/eventually.h"
#include "platform/qt/base/qt_main_queue.h"
#include "platform/qt/web/http_server.h"
#include "platform/qt/web/qt_web_client.h"

#include <QHash>

#include <gtest/gtest.h>

#include <memory>
#include <mutex>
#include <optional>

// GoogleTest finds these beside the types and would print lists of characters otherwise.
inline void PrintTo(const QByteArray &bytes, std::ostream *out)
{
    *out << '"' << bytes.left(2000).toStdString() << '"';
}
inline void PrintTo(const QUrl &url, std::ostream *out)
{
    *out << url.toEncoded().toStdString();
}

namespace corvane::test {

using e2e::eventually;

/// Names of a test's own. One that has several answers gives them one after the other.
class ResolverStub : public HostResolver {
public:
    void resolve(const QString &host, Completion completion) override
    {
        const std::lock_guard lock(m_mutex);
        asked.append(host);
        if (silent)
            return pending.push_back(std::move(completion));
        if (const QHostAddress literal(host); !literal.isNull())
            return completion({literal});
        QList<QList<QHostAddress>> &answers = names[host];
        completion(answers.size() > 1 ? answers.takeFirst() : answers.value(0));
    }

    /// Adds an answer: the addresses of this name.
    void name(const QString &host, const QStringList &addresses)
    {
        QList<QHostAddress> list;
        for (const QString &address : addresses)
            list.append(QHostAddress(address));
        names[host].append(list);
    }

    int timesAsked()
    {
        const std::lock_guard lock(m_mutex);
        return static_cast<int>(asked.size());
    }

    QHash<QString, QList<QList<QHostAddress>>> names;
    QStringList asked;
    bool silent = false;
    std::vector<Completion> pending;

private:
    std::mutex m_mutex;
};

/// A client, and servers on this machine of which some are said to be far away: 127.0.0.2 on the
/// internet and 127.0.0.3 in the network at hand.
class WebClientTest : public testing::Test {
protected:
    WebClientTest()
    {
        network.resolver = resolver;
        network.spaceOf = [](const QHostAddress &address) {
            if (address == QHostAddress(QStringLiteral("127.0.0.2")))
                return AddressSpace::Public;
            if (address == QHostAddress(QStringLiteral("127.0.0.3")))
                return AddressSpace::Private;
            return addressSpaceOf(address);
        };
        resolver->name(QStringLiteral("public.test"), {QStringLiteral("127.0.0.2")});
        resolver->name(QStringLiteral("private.test"), {QStringLiteral("127.0.0.3")});
        resolver->name(QStringLiteral("local.test"), {QStringLiteral("127.0.0.1")});
    }

    QtWebClient &client()
    {
        if (!m_client)
            m_client = std::make_unique<QtWebClient>(queue, network);
        return *m_client;
    }

    static WebRequest request(const QUrl &url, qint64 maximumBytes = 1'000'000)
    {
        WebRequest request;
        request.url = url;
        request.userAgent = "Tester/1.0";
        request.maximumBytes = maximumBytes;
        return request;
    }

    /// Waits for the completion.
    std::optional<WebResponse> fetch(const WebRequest &request)
    {
        std::optional<WebResponse> result;
        bool isDone = false;
        client().get(request, [&](std::optional<WebResponse> response) {
            EXPECT_FALSE(isDone) << "completed twice";
            isDone = true;
            result = std::move(response);
        });
        EXPECT_FALSE(isDone) << "completed inside the call";
        EXPECT_TRUE(eventually([&] { return isDone; })) << "never completed";
        return result;
    }
    std::optional<WebResponse> fetch(const QUrl &url) { return fetch(request(url)); }

    QtMainQueue queue;
    std::shared_ptr<ResolverStub> resolver = std::make_shared<ResolverStub>();
    WebNetwork network;
    std::unique_ptr<QtWebClient> m_client;
};

} // namespace corvane::test
