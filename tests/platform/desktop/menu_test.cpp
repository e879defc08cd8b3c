#include "platform/desktop/menu.h"
#include "platform/qt/desktop/qt_tray_icon.h"

#include <QAction>
#include <QApplication>
#include <QImage>
#include <QMenu>
#include <QWidget>

#include <gtest/gtest.h>

#include <memory>

namespace corvane::test {

namespace {

KeyEquivalent keys(const char16_t *key, Modifiers modifiers = {})
{
    return {QString::fromUtf16(key), modifiers};
}

QString shown(const KeyEquivalent &keys)
{
    return keys.sequence().toString(QKeySequence::PortableText);
}

MenuRow row(int id, const char *title, std::function<void()> action = {})
{
    return {id, QString::fromLatin1(title), {}, std::move(action)};
}

class QtTrayIconTest : public testing::Test {
protected:
    QtTrayIconTest()
    {
        setShape(0);
        item.setMenu([this] { return rows; });
    }

    void setShape(int shape)
    {
        item.setIcon(shape, [this](int side, const QColor &color) {
            ++pictures;
            QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
            image.fill(color);
            return image;
        });
    }

    static QMenu *menu()
    {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (auto *menu = qobject_cast<QMenu *>(widget))
                return menu;
        }
        return nullptr;
    }
    static QAction *action(int index) { return menu()->actions().value(index); }

    MenuRows rows{row(1, "one"), row(2, ""), row(3, "three")};
    int pictures = 0;
    QtTrayIcon item;
};

} // namespace

TEST(KeyEquivalent, isReadAsPeopleWriteIt)
{
    EXPECT_EQ(shown(keys(u"k", Modifier::Control | Modifier::Option)),
              QStringLiteral("Ctrl+Alt+K"));
    EXPECT_EQ(shown(keys(u"d", Modifier::Command | Modifier::Shift)),
              QStringLiteral("Meta+Shift+D"));
    EXPECT_EQ(shown(keys(u",", Modifier::Control)), QStringLiteral("Ctrl+,"));
    EXPECT_EQ(shown(keys(u"+", Modifier::Control)), QStringLiteral("Ctrl++"));
    EXPECT_EQ(shown(keys(u"-", Modifier::Control)), QStringLiteral("Ctrl+-"));
    EXPECT_EQ(shown(keys(u"f5")), QStringLiteral("F5"));
    EXPECT_EQ(shown(keys(u"⎋", Modifier::Command)), QStringLiteral("Meta+Esc"));
    EXPECT_TRUE(keys(u"", Modifier::Control).sequence().isEmpty());
}

TEST(KeyEquivalent, everySignHasAName)
{
    for (const char16_t *sign : {u"↩", u"⇥", u"␣", u"⌫", u"⌦", u"⎋", u"←", u"→", u"↑", u"↓", u"↖",
                                 u"↘", u"⇞", u"⇟", u"⌤"}) {
        const QString name = shown(keys(sign));
        EXPECT_FALSE(name.isEmpty() || name == QString::fromUtf16(sign))
            << qPrintable(QString::fromUtf16(sign));
    }
}

TEST_F(QtTrayIconTest, nothingIsMadeBeforeSomebodyIsThereToShowIt)
{
    EXPECT_FALSE(menu());
    item.appear();
    EXPECT_TRUE(menu());
}

TEST_F(QtTrayIconTest, eachShapeIsDrawnOnceInAColour)
{
    EXPECT_EQ(pictures, 0) << "nobody is there to show it";
    item.appear();
    const int each = pictures;
    EXPECT_GT(each, 0);
    for (int round = 0; round < 3; ++round) {
        for (int shape = 0; shape < 4; ++shape)
            setShape(shape);
    }
    EXPECT_EQ(pictures, 4 * each);
    item.setForeground(Qt::red);
    EXPECT_EQ(pictures, 5 * each) << "what is shown is drawn anew";
    item.setForeground(Qt::red);
    setShape(3);
    EXPECT_EQ(pictures, 5 * each);
    setShape(0);
    EXPECT_EQ(pictures, 6 * each);
}

TEST_F(QtTrayIconTest, theMenuHasTheRowsWithTheirKeys)
{
    rows[0].title = QStringLiteral("Quit & go");
    rows[0].keyEquivalent = keys(u"q", Modifier::Control);
    item.appear();
    ASSERT_EQ(menu()->actions().size(), 3);
    EXPECT_EQ(action(0)->text(), QStringLiteral("Quit && go"));
    EXPECT_EQ(action(0)->shortcut(), QKeySequence(QStringLiteral("Ctrl+Q")));
    EXPECT_TRUE(action(1)->isSeparator());
    EXPECT_TRUE(action(2)->shortcut().isEmpty());
}

TEST_F(QtTrayIconTest, theMenuIsBuiltAnewWhenItOpensAndWhenItChanged)
{
    item.appear();
    rows << row(4, "four");
    EXPECT_EQ(menu()->actions().size(), 3);
    Q_EMIT menu()->aboutToShow();
    EXPECT_EQ(menu()->actions().size(), 4);
    const QAction *before = action(0);
    Q_EMIT menu()->aboutToShow();
    EXPECT_EQ(action(0), before) << "panels are not told of nothing";
    rows.removeLast();
    item.menuChanged();
    EXPECT_EQ(menu()->actions().size(), 3);
}

TEST_F(QtTrayIconTest, aRowDoesItsWorkOnceTheMenuHasDoneItsOwn)
{
    int calls = 0;
    rows[2].action = [&] {
        ++calls;
        rows.clear();
        item.menuChanged();
    };
    item.setMenu([this] { return rows; });
    item.appear();
    action(2)->trigger();
    EXPECT_EQ(calls, 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(menu()->actions().isEmpty());
}

} // namespace corvane::test
