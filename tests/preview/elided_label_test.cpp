#include "preview/elided_label.h"
#include "preview/preview_look.h"

#include <QAccessible>
#include <QAccessibleInterface>
#include <QHelpEvent>
#include <QToolTip>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace corvane::test {
namespace {

const QString name = QStringLiteral("one name that is made of quite a few words.txt");

/// Enough for so many of the text's characters.
int widthFor(const ElidedLabel &label, qsizetype characters)
{
    return label.fontMetrics().horizontalAdvance(name.left(characters)) + 2;
}

TEST(ElidedLabelTest, ShowsWhatFitsInOneLine)
{
    ElidedLabel label;
    label.setText(name);
    EXPECT_EQ(label.lines(widthFor(label, name.size())), QStringList{name});
    label.setMaximumLines(3);
    EXPECT_EQ(label.lines(widthFor(label, name.size())), QStringList{name});
    EXPECT_EQ(label.heightForWidth(10'000), label.fontMetrics().height());
}

/// A label would be said as its window opens, and its text once more with the content.
TEST(ElidedLabelTest, IsATextThatIsFoundAndNotReadByItself)
{
    ElidedLabel label;
    label.setText(name);
    QAccessibleInterface *const told = QAccessible::queryAccessibleInterface(&label);
    EXPECT_EQ(told->role(), QAccessible::Paragraph);
    EXPECT_EQ(told->text(QAccessible::Name), name);
}

TEST(ElidedLabelTest, LeavesTheMiddleOfItsLastLineAway)
{
    ElidedLabel label;
    label.setText(name);
    const QStringList single = label.lines(widthFor(label, 20));
    ASSERT_EQ(single.size(), 1);
    EXPECT_TRUE(single[0].startsWith(QLatin1String("one"))) << qPrintable(single[0]);
    EXPECT_TRUE(single[0].endsWith(QLatin1String(".txt"))) << qPrintable(single[0]);

    label.setMaximumLines(2);
    const QStringList two = label.lines(widthFor(label, 20));
    ASSERT_EQ(two.size(), 2);
    EXPECT_TRUE(name.startsWith(two[0])) << "at a word: " << qPrintable(two[0]);
    EXPECT_TRUE(two[1].endsWith(QLatin1String(".txt"))) << qPrintable(two[1]);
    EXPECT_EQ(label.heightForWidth(widthFor(label, 20)), 2 * label.fontMetrics().height());
}

TEST(ElidedLabelTest, IsWholeInItsToolTipWhereItIsCutAndOnlyThere)
{
    ElidedLabel label;
    const auto toolTip = [&label] {
        QToolTip::hideText();
        QHelpEvent event(QEvent::ToolTip, {1, 1}, label.mapToGlobal(QPoint(1, 1)));
        QCoreApplication::sendEvent(&label, &event);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    };
    label.setText(name);
    label.show();
    label.resize(widthFor(label, name.size()), 20);
    EXPECT_EQ(toolTip(), QString());
    label.resize(widthFor(label, 20), 20);
    EXPECT_TRUE(toolTip().contains(name)) << toolTip().toStdString();
    EXPECT_EQ(label.toolTip(), QString()) << "it would be its description, too";
    label.setText(QStringLiteral("<b>bold</b>").repeated(20));
    EXPECT_TRUE(toolTip().contains(QLatin1String("&lt;b&gt;"))) << "a name is no markup";
    label.setText(name);
    label.setMaximumLines(9);
    EXPECT_FALSE(toolTip().contains(name)) << "it stands there in several lines";
}

TEST(ElidedLabelTest, ReadFromRightToLeftTheFirstPartStandsOnTheRight)
{
    ElidedLabel label;
    label.setLayoutDirection(Qt::RightToLeft);
    label.resize(300, label.fontMetrics().height());
    const auto atTheRight = [&](const QString &line) {
        label.setText(line);
        QRect place = label.rect();
        place.setLeft(place.right() - label.fontMetrics().horizontalAdvance(u'A'));
        return label.grab(place).toImage();
    };
    EXPECT_EQ(atTheRight(QStringLiteral("A · 992 כ")), atTheRight(QStringLiteral("A · כ")));
}

TEST(ElidedLabelTest, ReadFromRightToLeftItBeginsAtTheRightWhateverItsLetters)
{
    for (const bool hasOwnDirection : {false, true}) {
        ElidedLabel label;
        label.setHasOwnDirection(hasOwnDirection);
        label.resize(300, label.fontMetrics().height());
        const auto isEmpty = [&](const QRect &place) {
            const QImage picture = label.grab(place).toImage();
            QImage blank = picture;
            blank.fill(picture.pixelColor(0, 0));
            return picture == blank;
        };
        const QRect leftHalf(0, 0, 150, label.height());
        const QRect rightHalf = leftHalf.translated(150, 0);
        label.setText(QStringLiteral("Notes.data"));
        EXPECT_FALSE(isEmpty(leftHalf));
        EXPECT_TRUE(isEmpty(rightHalf));
        label.setLayoutDirection(Qt::RightToLeft);
        EXPECT_TRUE(isEmpty(leftHalf));
        EXPECT_FALSE(isEmpty(rightHalf));
    }
}

TEST(ElidedLabelTest, ANameIsReadInItsOwnDirection)
{
    ElidedLabel label;
    label.setLayoutDirection(Qt::RightToLeft);
    label.resize(300, label.fontMetrics().height());
    const auto read = [&](const QString &text, bool hasOwnDirection) {
        label.setHasOwnDirection(hasOwnDirection);
        label.setText(text);
        return label.grab().toImage();
    };
    const QString letters = QStringLiteral("Notes");
    EXPECT_EQ(read(letters, true), read(letters, false));
    // In the other direction it stands at the other end, and is mirrored.
    const QString bracketed = QStringLiteral("Notes (");
    EXPECT_NE(read(bracketed, true), read(bracketed, false));
}

TEST(ElidedLabelTest, IsFainterWhereItStandsBehindAnother)
{
    ElidedLabel label;
    label.setText(name);
    const QImage plain = label.grab().toImage();
    label.setSubdued(true);
    EXPECT_NE(label.grab().toImage(), plain);
    label.setSubdued(false);
    EXPECT_EQ(label.grab().toImage(), plain);
}

TEST(ElidedLabelTest, IsNoFainterWhereContrastIsWanted)
{
    ElidedLabel label;
    label.setText(name);
    const QImage plain = label.grab().toImage();
    label.setSubdued(true);
    preview_look::setContrast(preview_look::Contrast::More);
    EXPECT_EQ(label.grab().toImage(), plain);
    preview_look::setContrast(preview_look::Contrast::Usual);
    EXPECT_NE(label.grab().toImage(), plain);
}

TEST(ElidedLabelTest, IsGivenTheRoomOfItsLines)
{
    QWidget window;
    auto *const column = new QVBoxLayout(&window);
    auto *const label = new ElidedLabel(&window);
    label->setText(name);
    label->setMaximumLines(2);
    column->addStretch();
    column->addWidget(label);
    column->addStretch();
    window.resize(widthFor(*label, 20) + 40, 400);
    column->activate();
    EXPECT_EQ(label->height(), 2 * label->fontMetrics().height());
}

TEST(ElidedLabelTest, BreaksANameWithoutBlanks)
{
    ElidedLabel label;
    label.setText(QString(300, QLatin1Char('x')));
    label.setMaximumLines(2);
    const QStringList lines = label.lines(200);
    ASSERT_EQ(lines.size(), 2);
    for (const QString &line : lines)
        EXPECT_LE(label.fontMetrics().horizontalAdvance(line), 200);
}

TEST(ElidedLabelTest, SurvivesHavingNoTextAndNoRoom)
{
    ElidedLabel label;
    label.setMaximumLines(2);
    EXPECT_EQ(label.lines(100).size(), 1);
    label.setText(name);
    EXPECT_LE(label.lines(0).size(), 2);
}

} // namespace
} // namespace corvane::test
