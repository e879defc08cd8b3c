#include "app/preferences/number_picker.h"

#include "app/preferences/choice_button.h"
#include "core/shown_numbers.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPainter>

#include <algorithm>

namespace corvane {

namespace {

constexpr double fontSize = 12;
constexpr double horizontalPadding = 4;
constexpr double verticalPadding = 4;
constexpr double buttonWidth = 26;
constexpr double frameInset = 2;
constexpr double frameRadius = 7;
constexpr double frameOpacity = 0.06;

} // namespace

NumberPicker::NumberPicker(int minimum, int maximum, const QString &name, const WindowLook &look,
                           QWidget *parent)
    : QWidget(parent)
    , m_minimum(minimum)
    , m_maximum(maximum)
    , m_look(look)
    , m_group(new QButtonGroup(this))
{
    setAccessibleName(name);
    auto *layout = new QHBoxLayout(this);
    const int inset = m_look.length(frameInset);
    layout->setContentsMargins(inset, inset, inset, inset);
    layout->setSpacing(0);
    for (int number = minimum; number <= maximum; ++number) {
        auto *button
            = new ChoiceButton(shownNumber(number),
                               {fontSize, horizontalPadding, verticalPadding, buttonWidth}, m_look);
        m_group->addButton(button, number);
        layout->addWidget(button);
    }
    connect(m_group, &QButtonGroup::idToggled, this, [this](int number, bool chosen) {
        if (chosen)
            Q_EMIT picked(number);
    });
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

int NumberPicker::number() const
{
    return m_group->checkedId();
}

void NumberPicker::describe(const QString &text)
{
    const auto buttons = m_group->buttons();
    for (QAbstractButton *button : buttons)
        button->setAccessibleDescription(text);
}

void NumberPicker::setNumber(int number)
{
    const QSignalBlocker quiet(m_group);
    m_group->button(std::clamp(number, m_minimum, m_maximum))->setChecked(true);
}

void NumberPicker::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(WindowLook::edgeOfContrast(palette()));
    painter.setBrush(WindowLook::tint(palette(), frameOpacity));
    painter.drawRoundedRect(WindowLook::insideEdge(rect()), m_look.length(frameRadius),
                            m_look.length(frameRadius));
}

} // namespace corvane
