// The program as a shell uses it.

#include "e2e/desktop_test.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QTemporaryDir>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

/// What a command left.
struct Outcome {
    int status = -1;
    QByteArray output;
    QByteArray errors;
};

QProcessEnvironment withProgram(QProcessEnvironment environment)
{
    const QString folder = QFileInfo(CorvaneProgram::path()).path();
    environment.insert(u"PATH"_s, folder + u':' + environment.value(u"PATH"_s));
    return environment;
}

/// Runs a line in a shell and waits for its end. The line is bytes, as a path may be.
Outcome inShell(const QByteArray &line, const QProcessEnvironment &environment,
                const QString &folder = {})
{
    QProcess shell;
    shell.setProcessEnvironment(withProgram(environment));
    shell.setWorkingDirectory(folder);
    shell.start(u"sh"_s, {u"-s"_s});
    shell.write(line + '\n');
    shell.closeWriteChannel();
    Outcome outcome;
    // Events go on meanwhile: what runs in the shell may ask this process something.
    if (eventually([&] { return shell.state() == QProcess::NotRunning; })) {
        outcome.status
            = shell.exitStatus() == QProcess::CrashExit ? 128 + shell.exitCode() : shell.exitCode();
    } else {
        shell.kill();
        shell.waitForFinished();
    }
    outcome.output = shell.readAllStandardOutput();
    outcome.errors = shell.readAllStandardError();
    return outcome;
}

/// A process that has the program's name and refuses everything, in words of its own.
class RefusingCorvane : public QDBusVirtualObject {
public:
    explicit RefusingCorvane(const XDesktop &desktop)
        : m_bus(QDBusConnection::connectToBus(
            desktop.environment().value(u"DBUS_SESSION_BUS_ADDRESS"_s), u"refusing"_s))
    {
        m_bus.registerVirtualObject(u"/example/corvane/Corvane"_s, this);
        EXPECT_TRUE(m_bus.registerService(u"example.corvane.Corvane"_s));
    }
    ~RefusingCorvane() override { QDBusConnection::disconnectFromBus(m_bus.name()); }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override
    {
        // By which a later process sees that this one is no stuck one.
        if (message.member() == u"Introspect")
            return bus.send(message.createReply(u"<node/>"_s));
        return bus.send(message.createErrorReply(error, u"This is English"_s));
    }

    QString error;

private:
    QDBusConnection m_bus;
};

class CommandLine : public DesktopTest {
protected:
    CommandLine() { m_folder = makeFolder(u"in the shell"_s); }

    Outcome sh(const QByteArray &line) const
    {
        return inShell(line, m_desktop.environment(), m_folder);
    }
    /// An environment that no display can be found from.
    QProcessEnvironment withoutDisplay() const
    {
        auto environment = m_desktop.environment();
        environment.remove(u"DISPLAY"_s);
        environment.remove(u"WAYLAND_DISPLAY"_s);
        return environment;
    }
    QByteArray folder() const { return m_folder.toUtf8(); }

    QString m_folder;
};

TEST_F(CommandLine, filesAndLinksComeToTheRunningShelfInTheirOrder)
{
    start();
    ASSERT_EQ(sh("mkdir sub; touch -- 'a b' sub/c '-d' 'e#%41'").status, 0);
    const Outcome put = sh("corvane sub/../'a b' https://x.example/p ./sub//c -- -d 'e#%41'");
    EXPECT_EQ(put.status, 0) << put.errors.constData();
    EXPECT_TRUE(corvane().waitUntilShown());
    EXPECT_EQ(sh("corvane --list").output,
              folder() + "/a b\nhttps://x.example/p\n" + folder() + "/sub/c\n" + folder() + "/-d\n"
                  + folder() + "/e#%41\n");
}

TEST_F(CommandLine, namesComeAndGoByteByByte)
{
    start();
    const QByteArray name = "\xff\xfe new\nline";
    ASSERT_EQ(sh("touch '" + name + "' && corvane '" + name + "'").status, 0);
    EXPECT_EQ(sh("corvane -0 --list").output, folder() + "/" + name + QByteArray(1, '\0'));
    EXPECT_EQ(sh("corvane -0 --take | xargs -0 rm -- && ls").output, "");
}

TEST_F(CommandLine, aTextComesFromStandardInput)
{
    start();
    EXPECT_EQ(sh("printf 'a text\\nof two lines\\n' | corvane -").status, 0);
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    focusShelf(corvane().at(20, 20));
    hands().key('c', {keys::control});
    EXPECT_EQ(clipboardText("a text\nof two lines\n"), "a text\nof two lines\n");
    const Outcome broken = sh("printf '\\377\\376x' | corvane -");
    EXPECT_EQ(broken.status, 1);
    EXPECT_TRUE(broken.errors.contains("UTF-8")) << broken.errors.constData();
    EXPECT_EQ(sh("corvane --list").output, "") << "a text is no path";
}

TEST_F(CommandLine, whatIsNotThereIsSaidAndTheRestIsPut)
{
    start();
    const Outcome put = sh("touch here; corvane nowhere here ftp://x.example/a");
    EXPECT_EQ(put.status, 1);
    EXPECT_TRUE(put.errors.contains("corvane: there is no file nowhere\n"))
        << put.errors.constData();
    EXPECT_EQ(put.errors.count('\n'), 2) << put.errors.constData();
    EXPECT_EQ(sh("corvane --list").output, folder() + "/here\n");
}

TEST_F(CommandLine, takenIsWhatArrived)
{
    start();
    ASSERT_EQ(sh("touch a; corvane a https://x.example/").status, 0);
    EXPECT_EQ(sh("corvane --take > /dev/full").status, 1);
    const QByteArray all = folder() + "/a\nhttps://x.example/\n";
    EXPECT_EQ(sh("corvane --list").output, all) << "what could not be written";
    // A taker that ends before it has confirmed anything.
    ASSERT_EQ(sh("gdbus call --session --dest example.corvane.Corvane --object-path "
                 "/example/corvane/Corvane --method example.corvane.Shelf.Take >&2")
                  .status,
              0);
    const Outcome take = sh("corvane --take");
    EXPECT_EQ(take.status, 0);
    EXPECT_EQ(take.output, all);
    EXPECT_TRUE(corvane().waitUntilHidden());
    const Outcome again = sh("corvane --take");
    EXPECT_EQ(again.status, 1);
    EXPECT_EQ(again.output, "");
    EXPECT_TRUE(QFile::exists(m_folder + u"/a"_s));
}

TEST_F(CommandLine, theOneThatStartsTakesWhatItWasGiven)
{
    makeFile(u"in the shell/a"_s, "x");
    CorvaneProgram::Start how{{}, {}, withProgram(m_desktop.environment())};
    how.program = u"sh"_s;
    how.arguments
        = QStringList{u"-c"_s, u"cd \"$0\" && exec corvane ./a https://x.example/"_s, m_folder};
    start(how);
    EXPECT_TRUE(corvane().waitUntilShown());
    EXPECT_EQ(sh("corvane --list").output, folder() + "/a\nhttps://x.example/\n");
}

TEST_F(CommandLine, theShelfTheBarAndThePreferencesAreShown)
{
    start();
    EXPECT_EQ(sh("corvane --toggle").status, 0);
    EXPECT_TRUE(corvane().waitForSize(CorvaneProgram::empty));
    EXPECT_EQ(sh("corvane --toggle").status, 0);
    EXPECT_TRUE(corvane().waitUntilHidden());
    ASSERT_EQ(sh("touch a b; corvane a b").status, 0);
    EXPECT_EQ(sh("corvane --show-all").status, 0);
    EXPECT_TRUE(eventually([&] { return corvane().popup(Bar::height).has_value(); }));
    EXPECT_EQ(sh("corvane --show-all").status, 0);
    EXPECT_TRUE(corvane().popup(Bar::height)) << "it stays when it is there";
    EXPECT_EQ(sh("corvane --preferences").status, 0);
    EXPECT_TRUE(eventually([&] { return corvane().window().has_value(); }));
}

TEST_F(CommandLine, quittingWaitsForTheEnd)
{
    start();
    const QString spool = corvane().spool();
    EXPECT_EQ(sh("corvane --quit").status, 0);
    EXPECT_EQ(corvane().program().waitForEnd(), 0);
    EXPECT_FALSE(QFile::exists(spool));
    EXPECT_EQ(sh("corvane --quit").status, 0);
    EXPECT_EQ(sh("corvane --list").status, 0);
    EXPECT_EQ(sh("corvane --take").status, 1);
}

TEST_F(CommandLine, withoutADisplayItHelpsAndSpeaksToTheOneThatRuns)
{
    start();
    makeFile(u"in the shell/a"_s, "x");
    const auto run
        = [&](const QByteArray &line) { return inShell(line, withoutDisplay(), m_folder); };
    EXPECT_TRUE(run("corvane --help").output.contains("--take"));
    EXPECT_TRUE(run("corvane --version").output.startsWith("Corvane "));
    EXPECT_EQ(run("corvane --help --version; corvane --list").status, 0);
    EXPECT_EQ(run("corvane a").status, 0);
    EXPECT_EQ(run("corvane --list").output, folder() + "/a\n");
}

TEST_F(CommandLine, withoutADisplayAStartSaysSoInOneLine)
{
    const auto errorsOf = [](const QByteArray &line, const QProcessEnvironment &environment) {
        const Outcome outcome = inShell(line, environment);
        EXPECT_EQ(outcome.status, 1) << line.constData();
        EXPECT_EQ(outcome.errors.count('\n'), 1) << outcome.errors.constData();
        EXPECT_TRUE(outcome.errors.startsWith("corvane: ")) << outcome.errors.constData();
        return outcome.errors;
    };
    EXPECT_TRUE(errorsOf("corvane", withoutDisplay()).contains("DISPLAY"));
    EXPECT_TRUE(errorsOf("corvane --toggle", withoutDisplay()).contains("DISPLAY"));
    EXPECT_TRUE(errorsOf("DISPLAY=:4000 corvane", withoutDisplay()).contains(":4000"));
    for (const QByteArray where : {"WAYLAND_DISPLAY=nowhere", "WAYLAND_DISPLAY=/nowhere"}) {
        for (const QByteArray environment : {"env ", "env -u XDG_RUNTIME_DIR "})
            EXPECT_TRUE(errorsOf(environment + where + " corvane", withoutDisplay())
                            .contains("WAYLAND_DISPLAY"));
    }
    errorsOf("QT_QPA_PLATFORM_PLUGIN_PATH=/nowhere QT_PLUGIN_PATH=/nowhere DISPLAY=:4000 corvane",
             withoutDisplay());
}

TEST_F(CommandLine, whatItDoesNotKnowItSays)
{
    for (const QByteArray line : {"corvane --bogus", "corvane -x a", "corvane -platform nowhere",
                                  "corvane --list --take", "corvane -0"}) {
        const Outcome outcome = inShell(line, withoutDisplay());
        EXPECT_EQ(outcome.status, 2) << line.constData();
        EXPECT_EQ(outcome.output, "") << line.constData();
        EXPECT_EQ(outcome.errors.count('\n'), 1) << outcome.errors.constData();
    }
    EXPECT_TRUE(
        inShell("corvane --bogus", withoutDisplay()).errors.contains("there is no option --bogus"));
}

TEST_F(CommandLine, speaksTheSessionsLanguage)
{
    QProcessEnvironment german = withoutDisplay();
    german.insert(u"CORVANE_LANGUAGE"_s, u"de"_s);
    const Outcome help = inShell("corvane --help", german);
    EXPECT_EQ(help.status, 0);
    EXPECT_TRUE(help.output.contains("Corvane beenden")) << help.output.constData();
    EXPECT_EQ(inShell("corvane --bogus", german).errors,
              "corvane: eine Option --bogus gibt es nicht; siehe corvane --help\n");
    EXPECT_EQ(inShell("corvane /nowhere/a", german).errors,
              "corvane: eine Datei /nowhere/a gibt es nicht\n");
    EXPECT_TRUE(inShell("corvane", german).errors.contains("keine Anzeige"));
    EXPECT_TRUE(
        inShell("DISPLAY=:4000 corvane", german).errors.contains("die Anzeige kann nicht benutzt"));
}

TEST_F(CommandLine, everyLanguageStartsAndEnds)
{
    const QString prefix = u"corvane_"_s;
    const QStringList translations = QDir(QStringLiteral(CORVANE_TEST_DATA "/../translations"))
                                         .entryList({prefix + u"*.ts"_s}, QDir::Files);
    ASSERT_GT(translations.size(), 10);
    for (const QString &name : translations) {
        const QString language = QFileInfo(name).completeBaseName().sliced(prefix.size());
        SCOPED_TRACE(language.toStdString());
        CorvaneProgram::Start how;
        how.environment = m_desktop.environment();
        how.environment.insert(u"CORVANE_LANGUAGE"_s, language);
        start(how);
        corvane().program().signal(SIGTERM);
        ASSERT_EQ(corvane().program().waitForEnd(), 0);
    }
}

TEST_F(CommandLine, whatTheOneThatRunsRefusesIsSaidInTheSessionsLanguage)
{
    RefusingCorvane other(m_desktop);
    QProcessEnvironment german = m_desktop.environment();
    german.insert(u"CORVANE_LANGUAGE"_s, u"de"_s);
    makeFile(u"in the shell/a"_s, "x");
    for (const auto &[error, line] : {
             std::pair("example.corvane.Error.NotReady",
                       "das laufende Corvane ist noch nicht bereit; versuchen Sie es gleich noch "
                       "einmal"),
             std::pair("org.freedesktop.DBus.Error.LimitsExceeded",
                       "das laufende Corvane hat zu viel zu tun; versuchen Sie es gleich noch "
                       "einmal"),
             std::pair(
                 "org.freedesktop.DBus.Error.UnknownMethod",
                 "das laufende Corvane kann das nicht; vielleicht ist es eine ältere Version"),
             std::pair("org.freedesktop.DBus.Error.AccessDenied",
                       "das laufende Corvane meldet: org.freedesktop.DBus.Error.AccessDenied"),
         }) {
        other.error = QString::fromLatin1(error);
        for (const char *arguments : {"--list", "--take", "--quit", "--show-all", "a"}) {
            const Outcome outcome = inShell(QByteArray("corvane ") + arguments, german, m_folder);
            EXPECT_EQ(outcome.status, 1) << arguments;
            EXPECT_EQ(outcome.errors, QByteArray("corvane: ") + line + '\n') << arguments;
        }
    }
}

TEST_F(CommandLine, theDesktopOpensFilesAndUnknownActionsAreErrors)
{
    start();
    const QByteArray call = "gdbus call --session --dest example.corvane.Corvane --object-path "
                            "/example/corvane/Corvane --method org.freedesktop.Application.";
    EXPECT_EQ(sh(call + "Open \"['file:///a%FFb', 'https://x.example/']\" '{}'").status, 0);
    EXPECT_EQ(sh("corvane --list").output,
              "/a\xff"
              "b\nhttps://x.example/\n");
    EXPECT_NE(sh(call + "Open \"['nonsense', 'ftp://x.example/']\" '{}'").status, 0);
    EXPECT_NE(sh(call + "ActivateAction bogus '[]' '{}'").status, 0);
    EXPECT_NE(sh(call + "ActivateAction toggle '[<1>]' '{}'").status, 0);
    EXPECT_EQ(sh("gapplication action example.corvane.Corvane preferences").status, 0);
    EXPECT_TRUE(eventually([&] { return corvane().window().has_value(); }));
}

} // namespace
} // namespace corvane::e2e
