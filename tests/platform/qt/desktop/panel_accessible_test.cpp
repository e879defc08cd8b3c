#include "platform/panel_fixture.h"
#include "platform/qt/desktop/panel_accessible.h"

#include <QAccessible>
#include <QAccessibleInterface>
#include <QStringList>

#include <algorithm>
#include <functional>

namespace corvane::test {

namespace {

/// A panel's content with a tree that the test writes.
class ReadContent : public RecordingContent {
public:
    AccessibleNode accessible() const override
    {
        ++reads;
        return tree;
    }
    void perform(const QString &key, const QString &action) override
    {
        performed << key + QLatin1Char(' ') + action;
    }

    AccessibleNode tree;
    QStringList performed;
    mutable int reads = 0;
};

class PanelAccessibleTest : public PanelFixture {
protected:
    PanelAccessibleTest()
    {
        panel.setContent(&read);
        read.tree = part(QStringLiteral("root"), AccessibleNode::Role::Window);
        read.tree.children = {part(QStringLiteral("one"), AccessibleNode::Role::ListItem),
                              part(QStringLiteral("two"), AccessibleNode::Role::Button)};
    }
    ~PanelAccessibleTest() override { panel.setContent(nullptr); }
    /// The fixture's own waits for what the fixture's content paints.
    void show()
    {
        panel.orderFrontRegardless();
        ASSERT_TRUE(eventually([&] { return facts().isViewable && read.paints > 0; }));
    }
    static AccessibleNode part(const QString &name, AccessibleNode::Role role)
    {
        AccessibleNode node;
        node.key = node.name = name;
        node.role = role;
        node.frame = {10, 20, 30, 40};
        node.actions = {{AccessibleNode::press(), QStringLiteral("Press it")}};
        return node;
    }
    /// As the bridge to screen readers does. What it is told where one is there, other tests look
    /// at that need no display.
    QAccessibleInterface *ask() { return panel.window().accessibleRoot(); }
    static QStringList names(const QAccessibleInterface &root)
    {
        QStringList found;
        for (int i = 0; i < root.childCount(); ++i)
            found << root.child(i)->text(QAccessible::Name);
        return found;
    }
    /// Changes are gathered.
    bool isSoon(const std::function<bool()> &condition)
    {
        panel.accessibleChanged();
        return eventually(condition);
    }

    ReadContent read;
};

} // namespace

TEST_F(PanelAccessibleTest, NothingIsReadWhileNobodyAsks)
{
    show();
    panel.accessibleChanged();
    panel.announce(QStringLiteral("news"));
    bool isLater = false;
    queue.async([&] { isLater = true; });
    ASSERT_TRUE(eventually([&] { return isLater; }));
    EXPECT_EQ(read.reads, 0);
}

TEST_F(PanelAccessibleTest, AHiddenPanelIsNotListed)
{
    EXPECT_EQ(panel.window().accessibleRoot(), nullptr);
    show();
    EXPECT_NE(panel.window().accessibleRoot(), nullptr);
}

TEST_F(PanelAccessibleTest, ItsPartsAreWhatTheContentSays)
{
    show();
    QAccessibleInterface *root = ask();
    ASSERT_NE(root, nullptr);
    EXPECT_EQ(root->role(), QAccessible::Window);
    EXPECT_EQ(root->object(), &panel.window());
    ASSERT_EQ(root->childCount(), 2);
    QAccessibleInterface *one = root->child(0);
    EXPECT_EQ(one->role(), QAccessible::ListItem);
    EXPECT_EQ(one->text(QAccessible::Name), QStringLiteral("one"));
    EXPECT_EQ(one->parent(), root);
    EXPECT_EQ(root->indexOfChild(root->child(1)), 1);
    EXPECT_EQ(one->rect(), QRect(at(10, 40), QSize(30, 40)));
    EXPECT_EQ(root->child(2), nullptr);
}

TEST_F(PanelAccessibleTest, ActionsReachTheContent)
{
    show();
    read.tree.children.front().isFocusable = true;
    QAccessibleInterface *root = ask();
    QAccessibleActionInterface *actions = root->child(1)->actionInterface();
    ASSERT_NE(actions, nullptr);
    EXPECT_EQ(actions->actionNames(), QStringList{AccessibleNode::press()});
    EXPECT_EQ(actions->localizedActionName(AccessibleNode::press()), QStringLiteral("Press it"));
    actions->doAction(AccessibleNode::press());
    root->child(0)->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(read.performed,
              (QStringList{QStringLiteral("two Press"), QStringLiteral("one SetFocus")}));
}

TEST_F(PanelAccessibleTest, WhatComesAndGoesIsThereAndIsNot)
{
    show();
    QAccessibleInterface *root = ask();
    const QAccessibleInterface *two = root->child(1);
    read.tree.children.erase(read.tree.children.begin());
    read.tree.children.push_back(part(QStringLiteral("three"), AccessibleNode::Role::Label));
    const QStringList wanted{QStringLiteral("two"), QStringLiteral("three")};
    ASSERT_TRUE(isSoon([&] { return names(*root) == wanted; }));
    ASSERT_EQ(root->childCount(), 2);
    EXPECT_EQ(root->child(0), two) << "what stays is the same part";
}

TEST_F(PanelAccessibleTest, WhatChangesPlacesStaysTheSame)
{
    show();
    QAccessibleInterface *root = ask();
    const QAccessibleInterface *one = root->child(0);
    const QAccessibleInterface *two = root->child(1);
    std::swap(read.tree.children.front(), read.tree.children.back());
    read.tree.name = QStringLiteral("turned");
    ASSERT_TRUE(isSoon([&] { return root->text(QAccessible::Name) == QLatin1String("turned"); }));
    EXPECT_EQ(root->child(0), two);
    EXPECT_EQ(root->child(1), one);
}

TEST_F(PanelAccessibleTest, NamesAndStatesFollow)
{
    show();
    QAccessibleInterface *root = ask();
    read.tree.children.front().isCheckable = true;
    read.tree.children.front().isChecked = true;
    EXPECT_TRUE(isSoon([&] { return root->child(0)->state().checked; }));
    EXPECT_EQ(root->child(0)->text(QAccessible::Name), QStringLiteral("one"));
}

TEST_F(PanelAccessibleTest, TheFocusIsThereWithTheKeyboard)
{
    read.tree.children.front().isFocusable = true;
    read.tree.children.front().isFocused = true;
    show();
    QAccessibleInterface *root = ask();
    EXPECT_FALSE(root->child(0)->state().focused);
    panel.makeKey();
    ASSERT_TRUE(eventually([&] { return root->focusChild() == root->child(0); }));
    EXPECT_TRUE(root->state().active);
    EXPECT_TRUE(root->child(0)->state().focused);
    read.tree.children.front().isFocused = false;
    read.tree.children.back().isFocused = true;
    EXPECT_TRUE(isSoon([&] { return root->focusChild() == root->child(1); }));
}

TEST_F(PanelAccessibleTest, PartsOutliveThePanelAndSayThatTheyAreGone)
{
    auto other = std::make_unique<QtPanelWindow>(panels.desktop(), queue);
    other->setContent(&read);
    other->place(placementFor({600, 482, 300, 100}));
    other->orderFrontRegardless();
    QAccessibleInterface *root = other->window().accessibleRoot();
    ASSERT_NE(root, nullptr);
    const QAccessible::Id child = QAccessible::uniqueId(root->child(0));
    other.reset();
    EXPECT_EQ(QAccessible::accessibleInterface(child), nullptr);
}

} // namespace corvane::test
