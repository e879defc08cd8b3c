#include "app/preferences/preference_section.h"

#include "app/look/text_label.h"

#include <QPainter>
#include <QVBoxLayout>

namespace corvane {

namespace {

constexpr double titleSize = 11;
constexpr double titleInset = 2;
constexpr double afterTitle = 6;
constexpr double lineOpacity = 0.1;
constexpr double lineInset = 12;

/// The rows' ground.
class Card : public QWidget {
public:
    explicit Card(const WindowLook &look)
        : m_look(look)
    {
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        m_look.drawCard(painter, palette(), rect());
        const int inset = m_look.length(lineInset);
        for (int i = 1; i < layout()->count(); ++i) {
            const int y = layout()->itemAt(i)->geometry().top();
            painter.fillRect(QRect(inset, y, width() - 2 * inset, 1),
                             WindowLook::edge(palette(), lineOpacity));
        }
    }

private:
    WindowLook m_look;
};

} // namespace

PreferenceSection::PreferenceSection(const QString &title, const WindowLook &look, QWidget *parent)
    : QWidget(parent)
    , m_look(look)
    , m_card(new Card(look))
    , m_rows(new QVBoxLayout(m_card))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(m_look.length(afterTitle));
    auto *heading
        = new TextLabel(title, m_look.font(titleSize, QFont::DemiBold), TextLabel::Tone::Heading);
    // As far in on both sides, so that it stands right in either direction of reading.
    const int inset = m_look.length(titleInset);
    heading->setContentsMargins(inset, 0, inset, 0);
    layout->addWidget(heading);
    layout->addWidget(m_card);
    m_rows->setContentsMargins(0, 0, 0, 0);
    m_rows->setSpacing(0);
    // Screen readers say it on entering the group.
    setAccessibleName(title);
}

void PreferenceSection::addRow(QWidget *row)
{
    m_rows->addWidget(row);
}

} // namespace corvane
