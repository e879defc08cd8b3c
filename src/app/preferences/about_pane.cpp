#include "app/preferences/about_pane.h"

#include "app/look/text_label.h"
#include "app/preferences/link_button.h"
#include "platform/system/desktop_services.h"
#include "platform/web/shown_address.h"

#include <QHBoxLayout>
#include <QUrl>
#include <QVBoxLayout>

#include <utility>

namespace corvane {

namespace {

constexpr double nameSize = 17;
constexpr double textSize = 13;
constexpr double smallSize = 12;
constexpr double topSpace = 36;
constexpr double afterName = 4;
constexpr double afterVersion = 24;
constexpr double betweenParagraphs = 14;
constexpr double beforeLinks = 22;
constexpr double betweenLinks = 16;
/// The width of the text: the eye finds the next line more easily after a short one.
constexpr double paragraphInset = 40;

} // namespace

AboutPane::AboutPane(PreferencesContext context, QWidget *parent)
    : QWidget(parent)
    , m_context(std::move(context))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, m_look.length(topSpace), 0, 0);
    layout->setSpacing(0);
    auto *name = new TextLabel(QStringLiteral("Corvane"), m_look.font(nameSize, QFont::DemiBold),
                               TextLabel::Tone::Primary);
    layout->addWidget(name, 0, Qt::AlignHCenter);
    layout->addSpacing(m_look.length(afterName));
    auto *version = new TextLabel(
        tr("Version %1 (%2)").arg(m_context.appInfo.version(), m_context.appInfo.build()),
        m_look.font(smallSize), TextLabel::Tone::Secondary);
    // To be copied: people who report a fault are asked for the version.
    version->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    version->setFocusPolicy(Qt::ClickFocus);
    layout->addWidget(version, 0, Qt::AlignHCenter);
    layout->addSpacing(m_look.length(afterVersion));
    layout->addWidget(makeParagraph(tr("One slot. Drag in, switch context, drag out. The shelf "
                                       "clears itself and gets out of the way.")));
    layout->addSpacing(m_look.length(betweenParagraphs));
    layout->addWidget(
        makeParagraph(tr("Runs on your Mac. Nothing you drop is uploaded to us, logged, or sent "
                         "anywhere. Link previews are the one exception: they ask the linked site "
                         "for its own page. Turn them off in General.")));
    layout->addSpacing(m_look.length(beforeLinks));
    layout->addWidget(makeLinks(), 0, Qt::AlignHCenter);
    layout->addStretch();
}

QWidget *AboutPane::makeParagraph(const QString &text) const
{
    auto *paragraph = new TextLabel(text, m_look.font(textSize), TextLabel::Tone::Primary);
    paragraph->setWordWrap(true);
    paragraph->setAlignment(Qt::AlignHCenter);
    paragraph->setContentsMargins(m_look.length(paragraphInset), 0, m_look.length(paragraphInset),
                                  0);
    return paragraph;
}

QWidget *AboutPane::makeLinks()
{
    auto *links = new QWidget;
    auto *layout = new QHBoxLayout(links);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(m_look.length(betweenLinks));
    layout->addWidget(makeLink(tr("Website"), tr("Opens the product's page in the web browser"),
                               QUrl(m_context.appInfo.homePage())));
    layout->addWidget(
        makeLink(tr("Email support"), tr("Opens a new message in the mail program"),
                 QUrl(QStringLiteral("mailto:") % m_context.appInfo.supportAddress())));
    return links;
}

QWidget *AboutPane::makeLink(const QString &text, const QString &description, const QUrl &url)
{
    auto *link = new LinkButton(text, m_look);
    link->setAccessibleDescription(description);
    link->setToolTip(shownAddress(url));
    connect(link, &QPushButton::clicked, this,
            [&services = m_context.desktopServices, url] { services.open(url); });
    return link;
}

} // namespace corvane
