#include "fakes/fake_work_queue.h"
#include "fakes/test_clock.h"
#include "platform/qt/desktop/drop_fetch.h"
#include "platform/qt/desktop/panel_drop_target.h"

#include <QWindow>

#include <gtest/gtest.h>

#include <optional>
#include <utility>
#include <vector>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;

/// A drag whose source gives at once what it offers.
class ReadyDrag : public IncomingDrag {
public:
    explicit ReadyDrag(std::vector<std::pair<QString, QByteArray>> offers)
        : m_offers(std::move(offers))
    {
    }

    QStringList types() const override
    {
        QStringList types;
        for (const auto &[type, bytes] : m_offers)
            types << type;
        return types;
    }
    QByteArray fetched(const QString &) const override { return {}; }
    void fetch(const QString &type, qsizetype, Fetched done) override
    {
        asked << type;
        for (const auto &[name, bytes] : m_offers) {
            if (name == type)
                return done(Outcome::Arrived, bytes);
        }
        done(Outcome::Refused, {});
    }
    std::optional<QString> promisedFileName() override { return std::nullopt; }
    void receivePromisedFile(const QUrl &, std::function<void(bool)> done) override { done(false); }
    void finish(bool) override { }

    QStringList asked;

private:
    std::vector<std::pair<QString, QByteArray>> m_offers;
};

struct DropFetchTest : testing::Test {
    void drop(const std::vector<std::pair<QString, QByteArray>> &offers)
    {
        drag = std::make_shared<ReadyDrag>(offers);
        fetch.emplace(drag, nullptr, DropFetch::Threads{&work, &clock});
        fetch->start([this](FetchedPasteboard &pasteboard) {
            ++ends;
            text = pasteboard.string();
        });
    }
    void finishWork()
    {
        do {
            work.runAll();
            clock.runPending();
        } while (work.pendingCount() > 0);
    }
    static QByteArray large(QByteArray line)
    {
        return line.repeated(DropFetch::mostDecodedAtOnce / line.size() + 1);
    }

    const QString plain = QStringLiteral("text/plain");
    const QString utf8 = QStringLiteral("UTF8_STRING");
    test::FakeWorkQueue work;
    test::TestClock clock;
    std::shared_ptr<ReadyDrag> drag;
    std::optional<DropFetch> fetch;
    int ends = 0;
    std::optional<QString> text;
};

TEST_F(DropFetchTest, DecodesSmallTextsAtOnce)
{
    drop({{plain, QByteArray(DropFetch::mostDecodedAtOnce, 'x')}});
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(text, QString(DropFetch::mostDecodedAtOnce, QLatin1Char('x')));
    EXPECT_EQ(work.pendingCount(), 0U);
}

TEST_F(DropFetchTest, DecodesLargeTextsBesideTheMainThread)
{
    const QByteArray bytes = large("h\xc3\xa9llo\r\n");
    drop({{plain, bytes}});
    EXPECT_EQ(ends, 0);
    work.runAll();
    EXPECT_EQ(ends, 0) << "not on that thread";
    clock.runPending();
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(text, QString::fromUtf8(bytes));
}

TEST_F(DropFetchTest, DecodesLargeTextsAsTheirTypeSays)
{
    const QByteArray bytes = large("\xe9\xa4");
    drop({{QStringLiteral("text/plain;charset=iso-8859-15"), bytes}});
    finishWork();
    ASSERT_TRUE(text);
    EXPECT_EQ(text->left(2), QStringLiteral("é€"));
    EXPECT_EQ(text->size(), bytes.size());
}

TEST_F(DropFetchTest, TakesTheNextTypeWhereALargeTextIsBlank)
{
    drop({{plain, "seen"}, {utf8, large(" \n")}});
    EXPECT_EQ(ends, 0);
    finishWork();
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(text, QStringLiteral("seen"));
    EXPECT_EQ(drag->asked, (QStringList{utf8, plain}));
}

TEST_F(DropFetchTest, EndsWhereAllThereIsIsBlank)
{
    drop({{utf8, large(" \n")}});
    finishWork();
    EXPECT_EQ(ends, 1);
    EXPECT_FALSE(text);
}

TEST_F(DropFetchTest, SaysNothingOnceItIsGone)
{
    drop({{plain, large("x")}});
    fetch.reset();
    finishWork();
    EXPECT_EQ(ends, 0);
}

TEST_F(DropFetchTest, APanelFetchesEarlyWhatItsDropWillAskFor)
{
    drag = std::make_shared<ReadyDrag>(std::vector<std::pair<QString, QByteArray>>{
        {u"text/html"_s, "<p>a"}, {u"text/plain"_s, "a"}, {u"text/uri-list"_s, ""}});
    QWindow window;
    PanelDropTarget panel(window, nullptr, {&work, &clock});
    int earlyEnds = 0;
    const auto early = panel.fetchEarly(drag, [&] { ++earlyEnds; });
    EXPECT_EQ(drag->asked, (QStringList{u"text/uri-list"_s, u"text/plain"_s}));
    finishWork();
    EXPECT_EQ(earlyEnds, 1);
}

} // namespace
} // namespace corvane
