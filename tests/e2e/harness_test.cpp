// The desktop itself and the programs on it, without the program under test: where these fail, the
// others cannot be believed.

#include "e2e/desktop/text_editor.h"
#include "e2e/desktop_test.h"

#include <QFile>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

using VirtualDesktop = EveryDesktop;
INSTANTIATE_TEST_SUITE_P(, VirtualDesktop, everyDesktop(), nameOf);

TEST_P(VirtualDesktop, carriesAFileFromOneFileManagerWindowToAnother)
{
    makeFile(u"from/report.txt"_s, "carried\n");
    const QString to = makeFolder(u"to"_s);
    FileManager left(m_desktop, makeFolder(u"from"_s), QRect(60, 300, 560, 400));
    ASSERT_EQ(left.problem(), QString());
    FileManager right(m_desktop, to, QRect(760, 300, 560, 400));
    ASSERT_EQ(right.problem(), QString());

    hands().beginDrag(left.firstFile(), right.emptyPlace());
    hands().glideTo(right.emptyPlace());
    hands().aim(right.emptyPlace());
    hands().release();
    ASSERT_TRUE(right.chooseCopy());

    EXPECT_TRUE(eventually([&] { return bytesOf(to + u"/report.txt"_s) == "carried\n"; }));
}

TEST_P(VirtualDesktop, carriesTextIntoAnEditor)
{
    TextEditor editor(m_desktop, "some text", QRect(760, 300, 560, 400));
    ASSERT_EQ(editor.problem(), QString());
    EXPECT_EQ(editor.text("some text"), "some text");

    TextEditor other(m_desktop, "", QRect(60, 300, 560, 400));
    ASSERT_EQ(other.problem(), QString());
    editor.selectAll();
    hands().beginDrag(editor.firstWord(), other.middle());
    hands().glideTo(other.middle());
    hands().aim(other.middle());
    hands().release();

    EXPECT_EQ(other.text("some text"), "some text");
}

} // namespace
} // namespace corvane::e2e
