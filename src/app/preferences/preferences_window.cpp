#include "app/preferences/preferences_window.h"

#include "app/preferences/about_pane.h"
#include "app/preferences/choice_button.h"
#include "app/preferences/general_pane.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace corvane {

namespace {

constexpr double tabFontSize = 12;
constexpr double tabHorizontalPadding = 13;
constexpr double tabVerticalPadding = 5;
constexpr double tabSpacing = 4;
constexpr double tabBarMargin = 10;
constexpr double paneTop = 20;
constexpr double paneSides = 24;
constexpr double paneBottom = 26;
constexpr double dividerOpacity = 0.12;

class Divider : public QWidget {
public:
    Divider() { setFixedHeight(1); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter(this).fillRect(rect(), WindowLook::edge(palette(), dividerOpacity));
    }
};

} // namespace

PreferencesWindow::PreferencesWindow(PreferencesContext context, TabSelection &selection,
                                     std::function<void()> onClose)
    : ShellWindow(context.screenLocator, WindowLook().length(contentSize), std::move(onClose))
    , m_context(std::move(context))
    , m_selection(selection)
    , m_area(new QScrollArea)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeTabBar());
    layout->addWidget(new Divider);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setWidgetResizable(true);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_area->verticalScrollBar()->setStyleSheet(m_look.scrollBarStyle());
    m_area->setFocusPolicy(Qt::NoFocus);
    // The window's ground, whatever colour the style has for areas.
    m_area->viewport()->setAutoFillBackground(false);
    layout->addWidget(m_area);

    m_selection.observe(m_lifetime.guard([this] { showSelectedTab(); }));
    showSelectedTab();
}

QWidget *PreferencesWindow::makeTabBar()
{
    auto *bar = new QWidget;
    auto *layout = new QHBoxLayout(bar);
    const int margin = m_look.length(tabBarMargin);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(m_look.length(tabSpacing));
    layout->addStretch();
    for (std::size_t i = 0; i < allPreferencesTabs.size(); ++i) {
        const PreferencesTab tab = allPreferencesTabs[i];
        auto *button
            = new ChoiceButton(preferences_tab::title(tab),
                               {tabFontSize, tabHorizontalPadding, tabVerticalPadding}, m_look);
        button->setAccessibleDescription(tr("Pane of the preferences"));
        // Not `clicked`: a screen reader's action chooses without a click.
        connect(button, &QRadioButton::toggled, this, [this, tab](bool isChosen) {
            if (isChosen && m_selection.tab() != tab)
                m_selection.setTab(tab);
        });
        layout->addWidget(button);
        m_tabs[i] = button;
    }
    layout->addStretch();
    return bar;
}

QWidget *PreferencesWindow::makePane() const
{
    const bool isGeneral = m_selection.tab() == PreferencesTab::General;
    QWidget *pane
        = isGeneral ? static_cast<QWidget *>(new GeneralPane(m_context)) : new AboutPane(m_context);
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    // The longer pane is scrolled, and has the scroll bar in its margin.
    QMargins margins(m_look.length(paneSides), m_look.length(paneTop), m_look.length(paneSides),
                     m_look.length(paneBottom));
    if (isGeneral) {
        const int besideBar = m_look.length(paneSides - WindowLook::scrollBarWidth);
        if (layoutDirection() == Qt::RightToLeft)
            margins.setLeft(besideBar);
        else
            margins.setRight(besideBar);
    }
    layout->setContentsMargins(margins);
    layout->addWidget(pane);
    layout->addStretch();
    page->setAutoFillBackground(false);
    return page;
}

void PreferencesWindow::showSelectedTab()
{
    const auto at
        = std::find(allPreferencesTabs.begin(), allPreferencesTabs.end(), m_selection.tab());
    ChoiceButton *button = m_tabs[static_cast<std::size_t>(at - allPreferencesTabs.begin())];
    button->setChecked(true);
    if (m_shown == m_selection.tab())
        return;
    m_shown = m_selection.tab();
    // The control that has the focus is about to be destroyed with its pane.
    if (focusWidget() != nullptr)
        button->setFocus(Qt::OtherFocusReason);
    m_area->setWidget(makePane());
}

void PreferencesWindow::stepTab(int step)
{
    const int count = static_cast<int>(allPreferencesTabs.size());
    const int next = (static_cast<int>(m_selection.tab()) + step + count) % count;
    m_selection.setTab(allPreferencesTabs[static_cast<std::size_t>(next)]);
}

void PreferencesWindow::keyPressEvent(QKeyEvent *event)
{
    const bool withControl = event->modifiers().testFlag(Qt::ControlModifier);
    if (withControl && (event->key() == Qt::Key_Tab || event->key() == Qt::Key_PageDown))
        stepTab(1);
    else if (withControl && (event->key() == Qt::Key_Backtab || event->key() == Qt::Key_PageUp))
        stepTab(-1);
    else
        ShellWindow::keyPressEvent(event);
}

void PreferencesWindow::showEvent(QShowEvent *event)
{
    if (!event->spontaneous()) {
        m_area->setWidget(makePane());
        // The window itself has the focus, so that no control shows a ring before a key is used.
        setFocus(Qt::OtherFocusReason);
    }
    ShellWindow::showEvent(event);
}

} // namespace corvane
