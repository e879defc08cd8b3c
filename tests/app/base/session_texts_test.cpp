#include "app/base/session_texts.h"
#include "app/sessions/layer_session.h"
#include "fakes/lacking_abilities.h"

#include <QFile>
#include <QSet>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

/// Lines and what they are indented by are the editor's affair.
QString readme()
{
    QFile file(QStringLiteral(CORVANE_TEST_DATA "/../README.md"));
    return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()).simplified() : QString();
}

} // namespace

TEST(SessionTexts, aSessionThatLacksNothingHasNothingToSay)
{
    EXPECT_EQ(session_texts::limits({}), QStringList());
}

TEST(SessionTexts, eachAbilityThatIsMissingIsSaidInWordsOfItsOwnForEachReason)
{
    QSet<QString> said;
    for (const Reason why : {Reason::ServerLacksExtensions, Reason::KeptByDesktop}) {
        for (const QString &limit : session_texts::limits(lackingAbilities(why)))
            said << limit;
        said << session_texts::limit(Ability<Drags>{Drags::AtTheEdge, why});
    }
    EXPECT_EQ(said.size(), 12);
    for (const QString &text : said)
        EXPECT_FALSE(text.contains(QStringLiteral("because .")))
            << "without a reason: " << text.toStdString();
}

TEST(SessionTexts, theReadmesTableSaysOfEachAbilityWhatTheProgramSays)
{
    using session_texts::TableStyle;
    const auto x11 = session_texts::tableRows({});
    const auto briefly = [](const Abilities &abilities) {
        return session_texts::tableRows(abilities, TableStyle::Brief);
    };
    // Where the compositor keeps an X server for X11's programs.
    const auto sway = briefly(LayerSession::abilitiesWhere(true, false));
    const auto kde = briefly(LayerSession::abilitiesWhere(true, true));
    const auto gnome = briefly(QuietDesktop::abilities(true, false));
    EXPECT_EQ(x11.size(), 5);
    for (int i = 0; i < x11.size(); ++i) {
        const QString cells = QStringLiteral("| %1 | %2 | %3 | %4 | %5 |")
                                  .arg(x11[i].ability, x11[i].howFar, sway[i].howFar, kde[i].howFar,
                                       gnome[i].howFar);
        EXPECT_TRUE(readme().contains(cells)) << cells.toStdString();
    }
}

TEST(SessionTexts, theReadmeSaysWhatIsMissingWithoutTheServersExtensions)
{
    Abilities lacking = lackingAbilities(Reason::ServerLacksExtensions);
    lacking.shortcutChoice = {};
    lacking.keepingKey = {};
    for (const QString &limit : session_texts::limits(lacking))
        EXPECT_TRUE(readme().contains(QStringLiteral("- ") + limit)) << limit.toStdString();
}

TEST(SessionTexts, theReadmeSaysWhatIsMissingWhereNoXServerTellsOfDrags)
{
    const QString limit = session_texts::limit(QuietDesktop::abilities(false, true).drags);
    EXPECT_TRUE(readme().contains(QStringLiteral("- ") + limit)) << limit.toStdString();
}

TEST(SessionTexts, whatASessionLacksStandsInItsColumnOfTheTable)
{
    const Abilities lacking = lackingAbilities(Reason::KeptByDesktop);
    EXPECT_EQ(session_texts::tableRows(lacking)[0].howFar, session_texts::limit(lacking.drags));
}

} // namespace corvane::test
