// What an installation brings beside the program, as the desktop and the shells read it.

#include "e2e/desktop/program.h"
#include "e2e/desktop_test.h"

#include <QTemporaryDir>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

class Installation : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        s_folder = std::make_unique<QTemporaryDir>();
        const auto installed
            = outputOf(u"cmake"_s,
                       {u"--install"_s, QCoreApplication::applicationDirPath() + u"/.."_s,
                        u"--prefix"_s, s_folder->filePath(u"a prefix"_s)},
                       QProcessEnvironment::systemEnvironment());
        ASSERT_TRUE(installed);
    }
    static void TearDownTestSuite() { s_folder.reset(); }

    static QString path(const QString &name) { return s_folder->filePath(u"a prefix/"_s + name); }
    static QString contents(const QString &name)
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QFile::ReadOnly)) << name.toStdString();
        return QString::fromUtf8(file.readAll());
    }
    static std::optional<QByteArray> run(const QString &program, const QStringList &arguments)
    {
        return outputOf(program, arguments, QProcessEnvironment::systemEnvironment());
    }

    static std::unique_ptr<QTemporaryDir> s_folder;
    const QString m_entry = u"share/applications/example.corvane.Corvane.desktop"_s;
};

std::unique_ptr<QTemporaryDir> Installation::s_folder;

TEST_F(Installation, entryAndServiceNameTheProgramWhereItIsInstalled)
{
    const QString command = u"Exec=\""_s + path(u"bin/corvane"_s) + u'"';
    const QString entry = contents(m_entry);
    EXPECT_TRUE(entry.contains(command + u" %U\n"_s)) << entry.toStdString();
    EXPECT_TRUE(entry.contains(command + u" --toggle\n"_s));
    EXPECT_TRUE(entry.contains(command + u" --preferences\n"_s));
    EXPECT_TRUE(entry.contains(u"TryExec="_s + path(u"bin/corvane"_s) + u'\n'));
    EXPECT_TRUE(contents(u"share/dbus-1/services/example.corvane.Corvane.service"_s)
                    .contains(command + u" --started-by-bus\n"_s));
    EXPECT_TRUE(QFileInfo(path(u"bin/corvane"_s)).isExecutable());
    EXPECT_TRUE(QFileInfo(path(u"libexec/corvane-decoder"_s)).isExecutable());
}

TEST_F(Installation, entriesAreValid)
{
    EXPECT_TRUE(run(u"desktop-file-validate"_s, {path(m_entry)}));
    EXPECT_TRUE(run(u"desktop-file-validate"_s,
                    {path(u"share/Thunar/sendto/thunar-sendto-corvane.desktop"_s)}));
}

TEST_F(Installation, fileManagersAreGivenTheProgram)
{
    const QString command = u"\""_s + path(u"bin/corvane"_s) + u'"';
    EXPECT_TRUE(contents(u"share/kio/servicemenus/corvane-put-on-shelf.desktop"_s)
                    .contains(u"Exec="_s + command + u" %U\n"_s));
    // The extension of Files, with a stand-in for what Files offers it.
    const QString extension = path(u"share/nautilus-python/extensions/corvane-menu.py"_s);
    const auto said = run(u"python3"_s,
                          {u"-c"_s, uR"(
import subprocess, sys, types
gi = types.ModuleType("gi"); repository = types.ModuleType("gi.repository")
class Item:
    def __init__(self, name, label): self.label = label
    def connect(self, signal, call, files): call(self, files)
class File:
    def get_uri(self): return "file:///a%20b"
repository.GObject = types.SimpleNamespace(GObject=type("G", (), {}))
repository.Nautilus = types.SimpleNamespace(MenuProvider=type("M", (), {}), MenuItem=Item)
sys.modules["gi"] = gi; sys.modules["gi.repository"] = repository
subprocess.Popen = lambda command: print(command)
names = {}
exec(open(sys.argv[1]).read(), names)
menu = names["CorvaneMenu"]()
print([item.label for item in menu.get_file_items([File()])], menu.get_file_items([]))
print([item.label for item in menu.get_file_items("window", [File()])])
)"_s,
                           extension});
    ASSERT_TRUE(said);
    const QByteArray started = "['" + path(u"bin/corvane"_s).toUtf8() + "', '--', 'file:///a%20b']";
    EXPECT_EQ(said->count(started), 2) << said->constData();
    EXPECT_TRUE(said->contains("['Put on the Shelf'] []")) << said->constData();
}

TEST_F(Installation, theManPageHasNoFaults)
{
    const auto page = run(u"sh"_s,
                          {u"-c"_s, u"groff -man -ww -Tutf8 -K utf8 \"$0\" 2>&1"_s,
                           path(u"share/man/man1/corvane.1"_s)});
    ASSERT_TRUE(page);
    EXPECT_FALSE(page->contains("warning")) << page->constData();
    EXPECT_FALSE(page->contains("error")) << page->constData();
    EXPECT_TRUE(page->contains("moves what is on the shelf"));
}

TEST_F(Installation, shellsCompleteTheOptions)
{
    const auto byBash = run(u"bash"_s,
                            {u"-c"_s, uR"(. "$0"; COMP_WORDS=(corvane --t); COMP_CWORD=1
_corvane; echo "${COMPREPLY[@]}")"_s,
                             path(u"share/bash-completion/completions/corvane"_s)});
    EXPECT_EQ(byBash, "--toggle --take\n");
    const auto byFish
        = run(u"fish"_s,
              {u"--no-config"_s, u"-c"_s, u"source $argv[1]; complete -C 'corvane --ta'"_s,
               path(u"share/fish/vendor_completions.d/corvane.fish"_s)});
    EXPECT_EQ(byFish, "--take\tPrint them, and remove them from the shelf\n");
    // A terminal in which somebody types.
    const auto byZsh = run(u"zsh"_s,
                           {u"-f"_s, u"-c"_s, uR"(zmodload zsh/zpty; zpty typed zsh -f -i
zpty -w typed "fpath=(${1:h:q} \$fpath); autoload -U compinit; compinit -u -D"
zpty -w typed 'corvane() { print "<$1>"; }; PS1=read"y"'
zpty -r typed said '*ready*'
zpty -w -n typed $'corvane --li\t\n'
zpty -r typed said '*<*>*'
print -r -- ${${said##*<}%%>*})"_s,
                            u"zsh"_s, path(u"share/zsh/site-functions/_corvane"_s)});
    EXPECT_EQ(byZsh, "--list\n");
}

TEST_F(Installation, shellsCompleteNamesThatLookLikeOptionsAndPatterns)
{
    const QTemporaryDir folder;
    for (const auto &name : {u"--typed"_s, u"[a]b"_s, u"ab"_s}) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
    }
    const auto byBash = run(u"bash"_s,
                            {u"-c"_s, uR"(cd "$1"; . "$0"
COMP_WORDS=(corvane -- --t); COMP_CWORD=2; _corvane; echo "${COMPREPLY[@]}"
COMP_WORDS=(corvane '['); COMP_CWORD=1; _corvane; echo "${COMPREPLY[@]}")"_s,
                             path(u"share/bash-completion/completions/corvane"_s), folder.path()});
    EXPECT_EQ(byBash, "--typed\n[a]b\n");
    const auto byFish = run(
        u"fish"_s,
        {u"--no-config"_s, u"-c"_s, u"cd $argv[2]; source $argv[1]; complete -C 'corvane -- --t'"_s,
         path(u"share/fish/vendor_completions.d/corvane.fish"_s), folder.path()});
    EXPECT_EQ(byFish, "--typed\n");
}

} // namespace
} // namespace corvane::e2e
