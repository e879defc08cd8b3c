// What other programs of X11 are given of our clipboard.

#include "platform/display.h"
#include "platform/pasteboard/pasteboard_writer.h"
#include "platform/qt/base/qt_main_queue.h"
#include "platform/qt/pasteboard/qt_clipboard.h"
#include "platform/x11/drags/selection_reader.h"
#include "platform/x11/drags/x11_clipboard_answers.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <optional>

namespace corvane::test {

namespace {

using namespace Qt::StringLiterals;

class X11ClipboardAnswersTest : public testing::Test {
protected:
    ~X11ClipboardAnswersTest() override { QGuiApplication::clipboard()->clear(); }

    /// None for a refusal.
    std::optional<QByteArray> take(const char *target)
    {
        std::optional<QByteArray> taken;
        bool isOver = false;
        reader.read(connection.atom(target), XCB_CURRENT_TIME, 64LL * 1024 * 1024,
                    [&](SelectionReader::Outcome outcome, const QByteArray &bytes) {
                        if (outcome == SelectionReader::Outcome::Arrived)
                            taken = bytes;
                        isOver = true;
                    });
        EXPECT_TRUE(eventually([&] { return isOver; }));
        return taken;
    }
    bool isNamed(const char *target)
    {
        const QByteArray atoms = take("TARGETS").value_or(QByteArray());
        QList<xcb_atom_t> names(atoms.size() / qsizetype{sizeof(xcb_atom_t)});
        std::memcpy(names.data(), atoms.constData(),
                    static_cast<std::size_t>(names.size()) * sizeof(xcb_atom_t));
        return names.contains(connection.atom(target));
    }
    void copy(const QString &text) { clipboard.write({{{PasteboardWriter::Text{text}}}, {}}); }

    QtMainQueue queue;
    X11Connection connection;
    QtClipboard clipboard;
    X11ClipboardAnswers answers{connection, queue};
    SelectionReader reader{connection, queue, "CLIPBOARD"};
};

} // namespace

TEST_F(X11ClipboardAnswersTest, namesThatMayBeLatinOrUtf8AreThereOnlyForATextThatIsTheSameInBoth)
{
    copy(u"Gr\u00fc\u00dfe"_s);
    EXPECT_FALSE(isNamed("STRING"));
    EXPECT_FALSE(isNamed("TEXT"));
    for (const char *name : {"text/plain;charset=utf-8", "text/plain", "UTF8_STRING"}) {
        EXPECT_TRUE(isNamed(name)) << name;
        EXPECT_EQ(take(name),
                  "Gr\xc3\xbc\xc3\x9f"
                  "e")
            << name;
    }
    copy(u"plain"_s);
    EXPECT_TRUE(isNamed("STRING"));
    EXPECT_EQ(take("STRING"), "plain");
}

TEST_F(X11ClipboardAnswersTest, whoLeavesTheTypeToUsLosesNoCharacter)
{
    copy(u"\u4f60\u597d"_s);
    EXPECT_EQ(take("TEXT"), "\xe4\xbd\xa0\xe5\xa5\xbd");
}

TEST_F(X11ClipboardAnswersTest, aLargeTextComesInPieces)
{
    const QString text(1024 * 1024, QChar(0xe9));
    copy(text);
    EXPECT_EQ(take("UTF8_STRING"), text.toUtf8());
}

TEST_F(X11ClipboardAnswersTest, aTextOfAFieldHasTheExactNameToo)
{
    QGuiApplication::clipboard()->setText(u"\u00e9"_s);
    EXPECT_TRUE(isNamed("text/plain;charset=utf-8"));
    EXPECT_EQ(take("text/plain;charset=utf-8"), "\xc3\xa9");
    EXPECT_FALSE(isNamed("STRING"));
}

TEST_F(X11ClipboardAnswersTest, whatElseIsAskedOfAClipboardIsAnswered)
{
    copy(u"\u00e9"_s);
    EXPECT_TRUE(take("TIMESTAMP"));
    EXPECT_TRUE(isNamed("MULTIPLE"));
    EXPECT_FALSE(take("image/png"));
    QImage picture(4, 4, QImage::Format_RGB32);
    picture.fill(Qt::red);
    auto described = std::make_unique<QMimeData>();
    described->setImageData(picture);
    described->setText(u"a picture"_s);
    QGuiApplication::clipboard()->setMimeData(described.release());
    EXPECT_TRUE(isNamed("image/png"));
    EXPECT_TRUE(take("image/png"));
}

} // namespace corvane::test
