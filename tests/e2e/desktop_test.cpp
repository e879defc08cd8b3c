#include "e2e/desktop_test.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <vector>

namespace corvane::e2e {

using namespace Qt::StringLiterals;

namespace {

struct KeptDesktop {
    DesktopKind kind;
    std::unique_ptr<XDesktop> desktop;
};

std::vector<KeptDesktop> &desktops()
{
    static std::vector<KeptDesktop> all;
    return all;
}

XDesktop *current = nullptr;

/// Takes a picture of the desktop at the moment of a failure: afterwards the windows are gone.
class FailurePictures : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo &test) override
    {
        m_name = QString::fromUtf8(test.test_suite_name()) + u'.' + QString::fromUtf8(test.name());
        m_name.replace(u'/', u'-');
        m_count = 0;
    }
    void OnTestPartResult(const testing::TestPartResult &result) override
    {
        if (!result.failed() || current == nullptr || !current->problem().isEmpty())
            return;
        const QString folder
            = QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/../e2e-failures"_s);
        QDir().mkpath(folder);
        current->server().picture().save(folder + u'/' + m_name + u"-%1.png"_s.arg(++m_count));
    }
    QString m_name;
    int m_count = 0;
};

} // namespace

void takePicturesOfFailures()
{
    // GoogleTest owns its listeners.
    testing::UnitTest::GetInstance()->listeners().Append(new FailurePictures);
}

XDesktop &desktopOf(DesktopKind kind)
{
    const auto kept = std::ranges::find(desktops(), kind, &KeptDesktop::kind);
    if (kept != desktops().end())
        return *kept->desktop;
    return *desktops().emplace_back(kind, std::make_unique<XDesktop>(kind)).desktop;
}

void endDesktops()
{
    current = nullptr;
    desktops().clear();
}

void endDesktop(const XDesktop &desktop)
{
    if (current == &desktop)
        current = nullptr;
    std::erase_if(desktops(), [&](const auto &kept) { return kept.desktop.get() == &desktop; });
}

std::string nameOf(const testing::TestParamInfo<DesktopKind> &kind)
{
    if (kind.param.windowManager == WindowManager::Sway)
        return "sway";
    if (kind.param.windowManager == WindowManager::KWin)
        return "kwin";
    if (kind.param.windowManager == WindowManager::Mutter)
        return "mutter";
    return std::string(kind.param.windowManager == WindowManager::Openbox ? "openbox" : "xfwm4")
        + (kind.param.compositor == Compositor::Picom ? "_composited" : "_plain");
}

DesktopTest::DesktopTest(DesktopKind kind)
    : m_desktop(desktopOf(kind))
    , m_files(m_desktop.path(u"home/files"_s))
{
    current = &m_desktop;
}

void DesktopTest::SetUp()
{
    ASSERT_EQ(m_desktop.problem(), QString());
    QDir().mkpath(m_files);
    m_desktop.removeTemporaryFiles();
    hands().moveTo(QPoint(server().size().width() - 20, server().size().height() - 20));
}

void DesktopTest::TearDown()
{
    // Whatever a failed test has left pressed would be the next one's trouble.
    for (const uint32_t modifier : {keys::shift, keys::control, keys::alt})
        hands().keyUp(modifier);
    hands().release();
    if (HasFailure() && m_corvane)
        std::cout << m_corvane->program().output().toStdString();
    // What a compositor says last tells whether it was the one that failed.
    constexpr qsizetype itsLastWords = 2000;
    if (HasFailure() && m_desktop.nested())
        std::cout << m_desktop.nested()->program().output().right(itsLastWords).toStdString();
    m_corvane.reset();
    // The toolkit does not find files whose names are no text.
    std::filesystem::remove_all(m_files.toStdString());
}

void DesktopTest::start(const CorvaneProgram::Start &how)
{
    m_corvane = std::make_unique<CorvaneProgram>(m_desktop, how);
    ASSERT_TRUE(m_corvane->waitUntilReady()) << m_corvane->program().output().toStdString();
}

std::optional<NotifierFacts> DesktopTest::startInPanel(NotifierPanel &panel,
                                                       const CorvaneProgram::Start &how)
{
    if (!panel.waitUntilReady())
        return {};
    start(how);
    const qint64 pid = corvane().program().pid();
    if (!panel.waitForItemOf(pid))
        return {};
    return NotifierFacts(m_desktop, pid);
}

QString DesktopTest::makeFolder(const QString &name)
{
    QString path = m_files + u'/' + name;
    QDir().mkpath(path);
    return path;
}

QString DesktopTest::makeFile(const QString &name, const QByteArray &contents)
{
    QString path = m_files + u'/' + name;
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    EXPECT_TRUE(file.open(QFile::WriteOnly));
    file.write(contents);
    return path;
}

QPoint DesktopTest::dropPoint()
{
    const QRect body = corvane().body();
    return {body.left() + body.width() * 3 / 4, body.center().y()};
}

void DesktopTest::dropOnShelf()
{
    ASSERT_NO_FATAL_FAILURE(holdOverShelf());
    hands().release();
}

void DesktopTest::awaitDropTarget()
{
    // A hand goes on moving, and only a move that follows the beginning of a drag tells of it: some
    // programs take their time to begin.
    int step = 1;
    // While something is dragged the shelf is as large as when it is empty, or larger by a width
    // that it grew to before. It may have been there already, with what it holds.
    ASSERT_TRUE(eventually([&] {
        hands().moveBy(QPoint(step = -step, 0));
        const auto panel = corvane().panel();
        return panel && panel->frame.height() == CorvaneProgram::empty.height();
    })) << "the shelf does not open for the drag";
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::empty.height()));
}

void DesktopTest::holdOverShelf()
{
    ASSERT_NO_FATAL_FAILURE(awaitDropTarget());
    const auto leftEnd = [this] { return QRect(corvane().body().topLeft(), QSize(70, 56)); };
    const QImage before = m_desktop.pictureAtRest(leftEnd());
    // Where the shelf is known by the picture alone, the picture of what is dragged would be part
    // of it once it is there.
    const QPoint place = dropPoint();
    hands().glideTo(place);
    hands().aim(place);
    ASSERT_TRUE(eventually([&] { return server().picture(leftEnd()) != before; }))
        << "the shelf does not show that it would take the drop";
}

void DesktopTest::dropOutOn(QPoint from, QPoint place)
{
    hands().glideTo(from);
    const QByteArray usual = server().pointerPicture();
    hands().beginDrag(from, place);
    // Nothing takes it where it comes from, and the pointer shows that.
    ASSERT_TRUE(eventually([&] { return server().pointerPicture() != usual; }))
        << "the drag does not begin";
    const QByteArray unwelcome = server().pointerPicture();
    hands().glideTo(place);
    hands().aim(place);
    // A target that is asked too early may say no, and is asked again by the next move.
    int step = 1;
    ASSERT_TRUE(eventually([&] {
        hands().moveBy(QPoint(step = -step, 0));
        return server().pointerPicture() != unwelcome;
    })) << "the target does not say that it would take it";
    hands().release();
}

QByteArray DesktopTest::uriList(const QStringList &paths)
{
    QByteArray list;
    for (const QString &path : paths)
        list += QUrl::fromLocalFile(path).toEncoded() + "\r\n";
    return list;
}

testing::AssertionResult DesktopTest::dropOffers(const QList<XdndSource::Offer> &offers)
{
    XdndSource source(m_desktop, offers);
    source.pickUp();
    if (!corvane().waitUntilShown())
        return testing::AssertionFailure() << "the shelf does not open for the drag";
    if (!corvane().waitForHeight(CorvaneProgram::empty.height()))
        return testing::AssertionFailure() << "the shelf does not take the shape of a drop target";
    const auto status = source.hover(corvane().panel().value_or(WindowFacts{}).id, dropPoint());
    if (!status || !status->accepts)
        return testing::AssertionFailure() << "the shelf does not accept the drag";
    source.drop();
    const auto finish = source.waitForFinish();
    if (!finish)
        return testing::AssertionFailure() << "the drop is never finished towards its source";
    if (!finish->accepts)
        return testing::AssertionFailure() << "the drop is finished as refused";
    return testing::AssertionSuccess();
}

testing::AssertionResult DesktopTest::dropFiles(const QStringList &paths)
{
    return dropOffers({{"text/uri-list", uriList(paths)}});
}

QByteArray DesktopTest::clipboardText(const QByteArray &expected)
{
    QByteArray text;
    eventually([&] {
        text = m_desktop.clipboard(u"UTF8_STRING"_s).value_or(QByteArray());
        return text == expected;
    });
    return text;
}

testing::AssertionResult DesktopTest::holdsExactly(int inView, const QStringList &paths)
{
    const auto count = static_cast<int>(paths.size());
    // More than fit look the same.
    if (!corvane().waitForSize(CorvaneProgram::carousel(inView, count)))
        return testing::AssertionFailure() << "the shelf has the size of another number of items";
    QStringList held;
    const bool isHeld = eventually(
        [&] {
            held = Bar(m_desktop, corvane(), inView).held(count);
            return held == paths;
        },
        std::chrono::seconds{10});
    if (isHeld)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "it holds " << held.join(u' ').toStdString();
}

void DesktopTest::openMenu(QPoint at, uint8_t button)
{
    hands().click(at, button);
    ASSERT_TRUE(eventually([this] { return corvane().popup().has_value(); }));
    m_desktop.pictureAtRest(corvane().popup().value_or(WindowFacts{}).frame);
}

void DesktopTest::focusShelf(QPoint at)
{
    hands().click(at);
    const auto panel = corvane().panel();
    ASSERT_TRUE(panel);
    // The toolkit puts the focus on the panel's own window.
    ASSERT_TRUE(eventually([&] { return server().focusedWindow() == panel->id; }))
        << "a click does not give the shelf the keyboard";
}

} // namespace corvane::e2e
