#include "app/look/window_look.h"
#include "app/preferences/shortcut_recorder_view.h"
#include "fakes/fake_hot_keys.h"
#include "fakes/fake_key_monitors.h"

#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <functional>

namespace corvane::test {

namespace {

const Shortcut shiftCommandD
    = {KeyPosition{2}, Shortcut::command | Shortcut::shift, QStringLiteral("D")};
constexpr KeyPosition keyA = KeyPosition::A;

class ShortcutRecorderViewTest : public testing::Test {
protected:
    ShortcutRecorderViewTest()
    {
        auto *const layout = new QVBoxLayout(&window);
        layout->addWidget(other);
        layout->addWidget(view);
        view->onChange = [this](const Shortcut &shortcut) { changes << shortcut.display(); };
        window.show();
        window.activateWindow();
        QCoreApplication::processEvents();
    }
    void click(QWidget *widget, Qt::MouseButton button = Qt::LeftButton)
    {
        const QPointF point = QRectF(widget->rect()).center();
        QMouseEvent press(QEvent::MouseButtonPress, point, widget->mapToGlobal(point), button,
                          button, Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &press);
    }
    void type(int key, bool isRepeat = false)
    {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(), isRepeat);
        QCoreApplication::sendEvent(view, &press);
    }
    QImage picture(double scale = 1)
    {
        QImage image((QSizeF(view->size()) * scale).toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        image.fill(view->palette().color(QPalette::Window));
        view->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        return image;
    }
    /// How many pixels of the picture the condition holds for.
    int count(const std::function<bool(const QColor &)> &holds)
    {
        const QImage image = picture();
        int found = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                found += holds(image.pixelColor(x, y)) ? 1 : 0;
        }
        return found;
    }
    static bool isReddish(const QColor &color)
    {
        return color.red() > color.green() + 60 && color.red() > color.blue() + 60;
    }

    FakeKeyMonitors keys;
    FakeHotKeys hotKeys;
    QStringList announced;
    std::function<void(const QString &)> announce
        = [this](const QString &text) { announced << text; };
    QWidget window;
    // The window owns them.
    ShortcutRecorderView *view = new ShortcutRecorderView(keys, hotKeys, announce);
    ShortcutRecorderView *other = new ShortcutRecorderView(keys, hotKeys, announce);
    QStringList changes;
};

} // namespace

TEST_F(ShortcutRecorderViewTest, KeepsANameOfAnyLengthWithinItsEdges)
{
    view->setShortcut(Shortcut{KeyPosition::D, Shortcut::command, QStringLiteral("i")});
    const QImage brief = picture();
    view->setShortcut(Shortcut{KeyPosition::D, Shortcut::command, QString(300, u'M')});
    const QImage lengthy = picture();
    EXPECT_NE(lengthy, brief);
    const int edge = WindowLook().length(6) - 1;
    for (const int left : {0, view->width() - edge}) {
        const QRect side(left, 0, edge, view->height());
        EXPECT_EQ(lengthy.copy(side), brief.copy(side)) << left;
    }
}

TEST_F(ShortcutRecorderViewTest, SaysWhatItShows)
{
    EXPECT_EQ(view->text(), QStringLiteral("Record Shortcut"));
    view->setShortcut(shiftCommandD);
    EXPECT_EQ(view->text(), QStringLiteral("Meta+Shift+D"));
    click(view);
    EXPECT_EQ(view->text(), QStringLiteral("Type a shortcut…"));
}

TEST_F(ShortcutRecorderViewTest, AClickRecordsAndASecondOneStopsWithoutAChange)
{
    view->setShortcut(shiftCommandD);
    click(view);
    EXPECT_TRUE(view->isRecording());
    EXPECT_TRUE(view->hasFocus());
    click(view);
    EXPECT_FALSE(view->isRecording());
    EXPECT_EQ(view->shortcut(), shiftCommandD);
    EXPECT_TRUE(changes.isEmpty());
    click(view, Qt::RightButton);
    EXPECT_FALSE(view->isRecording());
}

TEST_F(ShortcutRecorderViewTest, SpaceAndReturnStartToo)
{
    for (const int key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        type(key);
        EXPECT_TRUE(view->isRecording()) << key;
        keys.type(KeyPosition::Escape, {});
    }
    type(Qt::Key_Space, true);
    EXPECT_FALSE(view->isRecording()) << "a key held from elsewhere";
}

TEST_F(ShortcutRecorderViewTest, TellsTheRecordedCombination)
{
    click(view);
    keys.type(keyA, Modifier::Control | Modifier::Shift, QStringLiteral("a"));
    EXPECT_EQ(changes, QStringList{QStringLiteral("⌃⇧A")});
    EXPECT_EQ(view->text(), QStringLiteral("Ctrl+Shift+A"));
}

TEST_F(ShortcutRecorderViewTest, LosingTheKeyboardEndsRecording)
{
    view->setShortcut(shiftCommandD);
    click(view);
    click(other);
    EXPECT_FALSE(view->isRecording());
    EXPECT_TRUE(other->isRecording());
    EXPECT_EQ(view->shortcut(), shiftCommandD);
    EXPECT_EQ(keys.monitorCount(), 1U);
    EXPECT_EQ(hotKeys.suspensions, 1);
}

TEST_F(ShortcutRecorderViewTest, ClosingTheWindowWhileRecordingRemovesTheMonitor)
{
    click(view);
    window.close();
    EXPECT_FALSE(view->isRecording());
    EXPECT_EQ(keys.monitorCount(), 0U);
    EXPECT_EQ(hotKeys.suspensions, 0);
}

TEST_F(ShortcutRecorderViewTest, LeavingTheWindowEndsRecording)
{
    click(view);
    view->setParent(nullptr);
    EXPECT_FALSE(view->isRecording());
    EXPECT_EQ(keys.monitorCount(), 0U);
    delete view;
}

TEST_F(ShortcutRecorderViewTest, DestroyingItWhileRecordingRemovesTheMonitor)
{
    click(view);
    delete view;
    EXPECT_EQ(keys.monitorCount(), 0U);
    EXPECT_EQ(hotKeys.suspensions, 0);
}

TEST_F(ShortcutRecorderViewTest, OnChangeMayDestroyIt)
{
    view->onChange = [this](const Shortcut &shortcut) {
        changes << shortcut.display();
        delete view;
    };
    click(view);
    keys.type(keyA, Modifier::Command, QStringLiteral("a"));
    EXPECT_EQ(changes, QStringList{QStringLiteral("⌘A")});
}

TEST_F(ShortcutRecorderViewTest, IsRedOnlyWhileItsShortcutIsInConflict)
{
    view->setConflict(true);
    EXPECT_EQ(count(isReddish), 0) << "there is nothing that could be";
    view->setShortcut(shiftCommandD);
    EXPECT_GT(count(isReddish), 0);
    view->setConflict(false);
    EXPECT_EQ(count(isReddish), 0);
}

TEST_F(ShortcutRecorderViewTest, TintsItsGroundWithTheAccentWhileRecording)
{
    QPalette palette = view->palette();
    palette.setColor(QPalette::Highlight, QColor(0, 200, 0));
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::Button, Qt::white);
    view->setPalette(palette);
    const QPoint ground(view->width() / 2, 4);
    EXPECT_EQ(picture().pixelColor(ground), QColor(Qt::white));
    click(view);
    // An accent at 0.12 over white: 255 - 0.12 x 255 and 255 - 0.12 x 55.
    const QColor tinted = picture().pixelColor(ground);
    EXPECT_NEAR(tinted.red(), 224, 1);
    EXPECT_NEAR(tinted.green(), 248, 1);
}

TEST_F(ShortcutRecorderViewTest, CentresItsText)
{
    QPalette palette = view->palette();
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::Button, Qt::white);
    palette.setColor(QPalette::ButtonText, Qt::black);
    palette.setColor(QPalette::WindowText, Qt::white);
    view->setPalette(palette);
    view->resize(124, 26);
    view->setShortcut(Shortcut{KeyPosition{96}, Shortcut::control, QStringLiteral("F5")});
    for (const double scale : {1.0, 2.0}) {
        const QImage image = picture(scale);
        QRect ink;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y).lightness() < 128)
                    ink |= QRect(x, y, 1, 1);
            }
        }
        ASSERT_FALSE(ink.isEmpty());
        EXPECT_NEAR(QRectF(ink).center().x(), image.width() / 2.0, 3 * scale);
        EXPECT_NEAR(QRectF(ink).center().y(), image.height() / 2.0, 4 * scale);
    }
}

TEST_F(ShortcutRecorderViewTest, AStrangersNameIsShownHarmlesslyAndInBounds)
{
    view->setShortcut(Shortcut{KeyPosition{2}, Shortcut::command, QStringLiteral("a\n\u202eb")});
    EXPECT_FALSE(view->text().contains(u'\n'));
    EXPECT_FALSE(view->text().contains(QChar(0x202e)));
    view->setShortcut(Shortcut{KeyPosition{2}, Shortcut::command, QString(100000, u'W')});
    picture();
}

TEST_F(ShortcutRecorderViewTest, IsAButtonForWhoHearsTheScreen)
{
    view->setAccessibleName(QStringLiteral("Show shelf"));
    view->setShortcut(shiftCommandD);
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(view);
    ASSERT_NE(accessible, nullptr);
    EXPECT_EQ(accessible->role(), QAccessible::Button);
    EXPECT_EQ(accessible->text(QAccessible::Name), QStringLiteral("Show shelf: Meta+Shift+D"));
    EXPECT_TRUE(accessible->state().focusable);
    accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(view->isRecording());
}

TEST_F(ShortcutRecorderViewTest, WhatComesToStandInItIsSaidOnceWhileTheUserIsThere)
{
    view->setShortcut(shiftCommandD);
    EXPECT_EQ(announced, QStringList()) << "nobody has used it";
    view->setFocus();
    type(Qt::Key_Space);
    const QString prompt = QStringLiteral("Type a shortcut…");
    EXPECT_EQ(announced, QStringList{prompt});
    keys.type(keyA, Modifier::Control, QStringLiteral("a"));
    view->setConflict(true);
    view->setShortcut(view->shortcut());
    EXPECT_EQ(announced, (QStringList{prompt, QStringLiteral("Ctrl+A")}));
    type(Qt::Key_Space);
    announced.clear();
    other->setFocus();
    EXPECT_EQ(announced, QStringList()) << "the next field is said instead";
    EXPECT_EQ(view->text(), QStringLiteral("Ctrl+A"));
}

TEST_F(ShortcutRecorderViewTest, ShowsTheFocusThatCameByTheKeyboard)
{
    view->setFocus(Qt::MouseFocusReason);
    const QImage clicked = picture();
    other->setFocus(Qt::TabFocusReason);
    const QImage without = picture();
    EXPECT_EQ(clicked, without);
    view->setFocus(Qt::TabFocusReason);
    EXPECT_NE(picture(), without);
}

} // namespace corvane::test
