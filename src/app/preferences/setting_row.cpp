#include "app/preferences/setting_row.h"

#include "app/look/text_label.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace corvane {

namespace {

constexpr double titleSize = 13;
constexpr double detailSize = 11.5;
constexpr double betweenTexts = 2;
constexpr double horizontalPadding = 12;
constexpr double verticalPadding = 9;
constexpr double beforeControls = 16;
constexpr double betweenControls = 6;

} // namespace

SettingRow::SettingRow(const QString &title, const QString &detail,
                       const QList<QWidget *> &controls, const WindowLook &look, QWidget *parent)
    : QWidget(parent)
    , m_title(new TextLabel(title, look.font(titleSize), TextLabel::Tone::Primary))
    , m_detail(new TextLabel({}, look.font(detailSize), TextLabel::Tone::Secondary))
{
    auto *texts = new QVBoxLayout;
    texts->setSpacing(look.length(betweenTexts));
    m_title->setWordWrap(true);
    m_detail->setWordWrap(true);
    setHasControls(true);
    texts->addStretch();
    texts->addWidget(m_title);
    texts->addWidget(m_detail);
    texts->addStretch();

    auto *layout = new QHBoxLayout(this);
    const int sides = look.length(horizontalPadding);
    const int ends = look.length(verticalPadding);
    layout->setContentsMargins(sides, ends, sides, ends);
    layout->setSpacing(look.length(betweenControls));
    layout->addLayout(texts, 1);
    layout->addSpacing(look.length(beforeControls - betweenControls));
    for (QWidget *control : controls)
        layout->addWidget(control, 0, Qt::AlignVCenter);
    setDetail(detail);
}

void SettingRow::setHasControls(bool hasControls)
{
    for (TextLabel *text : {m_title, m_detail})
        text->setSaidByControl(hasControls);
}

QString SettingRow::title() const
{
    return m_title->text();
}

QString SettingRow::detail() const
{
    return m_detail->text();
}

void SettingRow::setDetail(const QString &detail)
{
    m_detail->setText(detail);
    m_detail->setVisible(!detail.isEmpty());
}

} // namespace corvane
