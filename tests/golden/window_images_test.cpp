// Pictures of the preferences, of the guide and of updates, light and dark, at several scales.

#include "app/preferences/preferences_window_controller.h"
#include "app/updates/update_window_controller.h"
#include "app/welcome/welcome_view.h"
#include "app/welcome/welcome_window_controller.h"
#include "fakes/fake_window_activation.h"
#include "fakes/preferences_desk.h"
#include "golden/golden.h"

#include <QApplication>
#include <QImage>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QStyleFactory>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

enum class Scheme { Light, Dark };

QPalette paletteOf(Scheme scheme)
{
    const bool isDark = scheme == Scheme::Dark;
    const QColor text = isDark ? QColor(0xEE, 0xEE, 0xF0) : QColor(0x1B, 0x1C, 0x1F);
    QPalette palette(isDark ? QColor(0x3A, 0x3C, 0x42) : QColor(0xF2, 0xF2, 0xF4),
                     isDark ? QColor(0x26, 0x28, 0x2C) : QColor(0xF6, 0xF6, 0xF8));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, text);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x8A, 0x8B, 0x90));
    palette.setColor(QPalette::Highlight, QColor(0x2F, 0x80, 0xE0));
    palette.setColor(QPalette::Link, isDark ? QColor(0x6A, 0xB4, 0xFF) : QColor(0x1F, 0x66, 0xC2));
    return palette;
}

/// The same fonts, style and colours wherever the test runs.
class WindowImages : public testing::Test {
protected:
    WindowImages()
    {
        QFont inter(QStringLiteral("Inter"));
        inter.setPixelSize(13);
        QApplication::setFont(inter);
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    }
    ~WindowImages() override
    {
        QApplication::setFont(m_font);
        QApplication::setPalette(QPalette());
    }

    void use(Scheme scheme) { QApplication::setPalette(paletteOf(scheme)); }

    static QImage picture(QWidget &window, double scale)
    {
        QCoreApplication::processEvents();
        QImage image((QSizeF(window.size()) * scale).toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        window.render(&image);
        return image;
    }
    void expectPictures(QWidget &window, const char *name)
    {
        for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
            use(scheme);
            for (const int scale : {1, 2}) {
                const QString file = QStringLiteral("%1-%2-%3x.png")
                                         .arg(QString::fromLatin1(name),
                                              scheme == Scheme::Dark ? QStringLiteral("dark")
                                                                     : QStringLiteral("light"),
                                              QString::number(scale));
                EXPECT_TRUE(matchesGoldenImage(file, picture(window, scale)));
            }
        }
    }

    PreferencesDesk desk;

private:
    QFont m_font = QApplication::font();
};

} // namespace

TEST_F(WindowImages, GeneralPane)
{
    desk.settings.setInViewCount(3);
    desk.settings.setLinkPreviews(false);
    PreferencesWindowController controller(desk.context());
    controller.window().present();
    expectPictures(controller.window(), "preferences-general");
}

TEST_F(WindowImages, TheEndOfTheGeneralPane)
{
    PreferencesWindowController controller(desk.context());
    controller.window().present();
    QCoreApplication::processEvents();
    auto *bar = controller.window().findChild<QScrollArea *>()->verticalScrollBar();
    bar->setValue(bar->maximum());
    expectPictures(controller.window(), "preferences-general-end");
}

TEST_F(WindowImages, AboutPane)
{
    PreferencesWindowController controller(desk.context());
    controller.selection().setTab(PreferencesTab::About);
    controller.window().present();
    expectPictures(controller.window(), "preferences-about");
}

TEST_F(WindowImages, EachStepOfTheGuide)
{
    WelcomeWindowController controller(desk.motion);
    controller.window().present();
    expectPictures(controller.window(), "welcome-1");
    controller.view().goForward();
    expectPictures(controller.window(), "welcome-2");
    controller.view().goForward();
    expectPictures(controller.window(), "welcome-3");
}

TEST_F(WindowImages, EachStageOfAnUpdate)
{
    using Stage = UpdateReport::Stage;
    FakeWindowActivation activation;
    UpdateWindowController controller(activation, QStringLiteral("1.0"), true);
    const QString notes = QStringLiteral("What is new:\n\n• The shelf opens a little faster\n"
                                         "• Links show their pictures again after a site moved, "
                                         "and ask no more than once when a page answers slowly")
        + QStringLiteral("\n• Another line").repeated(12);
    UpdateReport report = {Stage::Available, QStringLiteral("1.2"), notes, 0, 98'300'000};
    controller.show(report, UpdateAttention::Asked);
    expectPictures(*controller.window(), "update-available");
    report.stage = Stage::Downloading;
    report.received = 34'000'000;
    controller.show(report, UpdateAttention::Asked);
    expectPictures(*controller.window(), "update-downloading");
    report.stage = Stage::Failed;
    report.failure = UpdateFailure::WrongSignature;
    controller.show(report, UpdateAttention::Asked);
    expectPictures(*controller.window(), "update-failed");
}

} // namespace corvane::test
