#include "fakes/test_clock.h"
#include "platform/qt/desktop/panel_accessible.h"
#include "platform/qt/desktop/panel_canvas.h"

#include <QAccessible>
#include <QGuiApplication>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <gtest/gtest.h>
#include <private/qguiapplication_p.h>

namespace corvane::test {

namespace {

using Role = AccessibleNode::Role;

QString stateThatChanged(const QAccessible::State &state)
{
    QStringList names;
    if (state.active)
        names << QStringLiteral("active");
    if (state.busy)
        names << QStringLiteral("busy");
    if (state.checked)
        names << QStringLiteral("checked");
    if (state.disabled)
        names << QStringLiteral("disabled");
    if (state.selected)
        names << QStringLiteral("selected");
    return names.join(u'+');
}

QString kindOf(QAccessibleEvent &event)
{
    switch (event.type()) {
    case QAccessible::ObjectCreated:
        return QStringLiteral("created");
    case QAccessible::ObjectShow:
        return QStringLiteral("shown");
    case QAccessible::ObjectHide:
        return QStringLiteral("hidden");
    case QAccessible::ObjectDestroyed:
        return QStringLiteral("gone");
    case QAccessible::NameChanged:
        return QStringLiteral("renamed");
    case QAccessible::DescriptionChanged:
        return QStringLiteral("described");
    case QAccessible::Focus:
        return QStringLiteral("focus");
    case QAccessible::StateChanged:
        return stateThatChanged(dynamic_cast<QAccessibleStateChangeEvent &>(event).changedStates());
    default:
        return QStringLiteral("something");
    }
}

/// Has the toolkit take it that a screen reader is there, and notes what that one would be told.
class Listening {
public:
    Listening()
    {
        told.clear();
        toolkit().setActive(true);
        m_before = QAccessible::installUpdateHandler([](QAccessibleEvent *event) {
            const QAccessibleInterface *about = event->accessibleInterface();
            told << kindOf(*event) + u' ' + (about ? about->text(QAccessible::Name) : QString());
        });
    }
    ~Listening()
    {
        QAccessible::installUpdateHandler(m_before);
        toolkit().setActive(false);
    }
    Listening(const Listening &) = delete;
    Listening &operator=(const Listening &) = delete;

    static QStringList told;

private:
    static QPlatformAccessibility &toolkit()
    {
        return *QGuiApplicationPrivate::platformIntegration()->accessibility();
    }

    QAccessible::UpdateHandler m_before;
};

QStringList Listening::told;

class PanelAccessibleEventsTest : public testing::Test {
protected:
    PanelAccessibleEventsTest()
    {
        tree = part("panel", Role::Window);
        tree.children = {part("one", Role::CheckBox), part("two", Role::Button)};
    }
    ~PanelAccessibleEventsTest() override { canvas.forgetOwner(); }

    static AccessibleNode part(const char *name, Role role)
    {
        AccessibleNode node;
        node.key = node.name = QString::fromUtf8(name);
        node.role = role;
        return node;
    }
    void giveKeyboard()
    {
        canvas.resize(10, 10);
        canvas.show();
        canvas.requestActivate();
        for (int i = 0; i < 100 && QGuiApplication::focusWindow() != &canvas; ++i)
            QCoreApplication::processEvents();
        ASSERT_EQ(QGuiApplication::focusWindow(), &canvas);
    }
    /// As a screen reader does that looks for what there is.
    QAccessibleInterface &root() { return *QAccessible::queryAccessibleInterface(&canvas); }
    QStringList names()
    {
        QStringList names;
        for (int i = 0; i < root().childCount(); ++i)
            names << root().child(i)->text(QAccessible::Name);
        return names;
    }
    /// What is told of the change.
    QStringList toldOfChange()
    {
        Listening::told.clear();
        accessible.changed();
        clock.advance(0);
        return Listening::told;
    }

    AccessibleNode tree;
    TestClock clock;
    PanelCanvas canvas{[](QPainter &) {}, [](QEvent &) { return false; }};
    PanelAccessible accessible{{.canvas = canvas,
                                .queue = clock,
                                .read = [this] { return tree; },
                                .perform = [](const QString &, const QString &) {},
                                .toWindow = [](const QRectF &frame) { return frame.toRect(); }}};
};

} // namespace

TEST_F(PanelAccessibleEventsTest, AnAnnouncementIsANotificationThatAppears)
{
    const Listening listening;
    accessible.announce(QStringLiteral("a was added"));
    clock.advance(0);
    EXPECT_EQ(
        Listening::told,
        (QStringList{QStringLiteral("created a was added"), QStringLiteral("shown a was added")}))
        << "though nobody has asked for the panel before";
    ASSERT_EQ(root().childCount(), 3);
    EXPECT_EQ(root().child(2)->role(), QAccessible::Notification);
    EXPECT_EQ(root().child(0)->role(), QAccessible::CheckBox);
}

TEST_F(PanelAccessibleEventsTest, TwoAnnouncementsAreTwoAndEachGoesInItsTurn)
{
    const Listening listening;
    accessible.announce(QStringLiteral("first"));
    clock.advance(PanelAccessible::announcementDuration / 2);
    accessible.announce(QStringLiteral("second"));
    clock.advance(0);
    EXPECT_EQ(names().mid(2), (QStringList{QStringLiteral("first"), QStringLiteral("second")}));
    Listening::told.clear();
    clock.advance(PanelAccessible::announcementDuration / 2);
    EXPECT_EQ(names().mid(2), QStringList{QStringLiteral("second")});
    EXPECT_EQ(Listening::told, QStringList{QStringLiteral("gone first")});
    clock.advance(PanelAccessible::announcementDuration);
    EXPECT_EQ(names().size(), 2);
}

TEST_F(PanelAccessibleEventsTest, WhereNobodyListensNothingIsAnnouncedOrRead)
{
    ASSERT_FALSE(QAccessible::isActive());
    accessible.announce(QStringLiteral("to nobody"));
    clock.advance(0);
    EXPECT_EQ(names().size(), 2);
}

TEST_F(PanelAccessibleEventsTest, WhatChangesIsToldOnceAndOfThatPartAlone)
{
    const Listening listening;
    root();
    AccessibleNode &one = tree.children.front();
    one.isChecked = true;
    EXPECT_EQ(toldOfChange(), QStringList{QStringLiteral("checked one")});
    one.isSelected = one.isBusy = true;
    EXPECT_EQ(toldOfChange(),
              (QStringList{QStringLiteral("selected one"), QStringLiteral("busy one")}));
    tree.children.back().isEnabled = false;
    EXPECT_EQ(toldOfChange(), QStringList{QStringLiteral("disabled two")});
    one.name = QStringLiteral("uno");
    EXPECT_EQ(toldOfChange(), QStringList{QStringLiteral("renamed uno")});
    one.description = QStringLiteral("the first");
    EXPECT_EQ(toldOfChange(), QStringList{QStringLiteral("described uno")});
    EXPECT_EQ(toldOfChange(), QStringList());
}

TEST_F(PanelAccessibleEventsTest, WhatComesAndGoesIsTold)
{
    const Listening listening;
    root();
    tree.children.front() = part("three", Role::ListItem);
    EXPECT_EQ(toldOfChange(),
              (QStringList{QStringLiteral("gone one"), QStringLiteral("created three")}));
}

TEST_F(PanelAccessibleEventsTest, TheFocusIsToldWhereItComesToAndAsTheKeyboardComes)
{
    const Listening listening;
    root();
    for (AccessibleNode &child : tree.children)
        child.isFocusable = true;
    tree.children.front().isFocused = true;
    EXPECT_FALSE(toldOfChange().contains(QStringLiteral("focus one"))) << "it has no keyboard";
    giveKeyboard();
    Listening::told.clear();
    accessible.keyboardChanged();
    EXPECT_EQ(Listening::told,
              (QStringList{QStringLiteral("active panel"), QStringLiteral("focus one")}));
    std::swap(tree.children.front().isFocused, tree.children.back().isFocused);
    EXPECT_EQ(toldOfChange(), QStringList{QStringLiteral("focus two")});
    tree.children.back().isFocused = false;
    tree.children.push_back(part("new", Role::Button));
    tree.children.back().isFocused = true;
    EXPECT_EQ(toldOfChange(),
              (QStringList{QStringLiteral("created new"), QStringLiteral("focus new")}));
}

TEST_F(PanelAccessibleEventsTest, APanelThatIsShownAndHiddenComesAndGoes)
{
    const Listening listening;
    root();
    accessible.shown();
    accessible.willHide();
    EXPECT_EQ(Listening::told,
              (QStringList{QStringLiteral("created panel"), QStringLiteral("shown panel"),
                           QStringLiteral("hidden panel"), QStringLiteral("gone panel")}));
}

} // namespace corvane::test
