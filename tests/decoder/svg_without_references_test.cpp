#include "decoder/svg_without_references.h"

#include <QBuffer>
#include <QImage>

#include <gtest/gtest.h>

namespace corvane {
namespace {

QByteArray drawing(const QByteArray &inside)
{
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\">"
        + inside + "</svg>";
}

QByteArray cleaned(const QByteArray &inside)
{
    return svgWithoutReferences(drawing(inside)).value_or("none");
}

QByteArray embedded(QSize size)
{
    QImage image(size, QImage::Format_Mono);
    image.fill(0);
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return "<image xlink:href=\"data:image/png;base64," + png.toBase64() + "\"/>";
}

TEST(SvgWithoutReferencesTest, KeepsWhatIsDrawn)
{
    const QByteArray inside = "<g id=\"a\"><path d=\"M0 0\" fill=\"url(#b)\"/></g>"
                              "<use xlink:href=\"#a\"/><text x=\"1\">Text</text>";
    const QByteArray result = cleaned(inside);
    for (const char *part :
         {"<path d=\"M0 0\" fill=\"url(#b)\"", "xlink:href=\"#a\"", ">Text</text>"})
        EXPECT_TRUE(result.contains(part)) << part;
}

TEST(SvgWithoutReferencesTest, LeavesOutScriptsAndAnimations)
{
    const QByteArray result = cleaned(
        "<script>run()</script><rect onclick=\"run()\" onload=\"run()\"/>"
        "<g><animate attributeName=\"x\"/><animateTransform type=\"rotate\"/><set to=\"run\"/></g>"
        "<foreignObject><p>run</p></foreignObject>");
    EXPECT_TRUE(result.contains("<rect")) << result.constData();
    for (const char *part : {"run", "script", "animate", "onclick", "foreignObject", "<set"})
        EXPECT_FALSE(result.contains(part)) << part;
}

TEST(SvgWithoutReferencesTest, LeavesOutWhatIsElsewhere)
{
    for (const char *element :
         {"<use xlink:href=\"file:///etc/passwd#a\"/>", "<use href=\"other.svg\"/>",
          "<image href=\"/etc/passwd\"/>", "<image href=\"https://example.org/a.png\"/>",
          "<image href=\"data:image/svg+xml;base64,PHN2Zz4=\"/>", "<feImage href=\"other.svg\"/>"})
        EXPECT_FALSE(cleaned(element).contains("href=")) << element;
    EXPECT_FALSE(svgWithoutReferences("<?xml-stylesheet href=\"/etc/passwd\"?>" + drawing(""))
                     ->contains("passwd"));
}

TEST(SvgWithoutReferencesTest, TakesNoDrawingThatIsTooLongOrBecomesSo)
{
    const qsizetype rest = maximumDrawingBytes - drawing("").size();
    EXPECT_TRUE(svgWithoutReferences(drawing(QByteArray(rest, ' '))).has_value());
    EXPECT_FALSE(svgWithoutReferences(drawing(QByteArray(rest + 1, ' '))).has_value());
    // Each is written again as six bytes.
    EXPECT_FALSE(svgWithoutReferences(drawing(QByteArray(rest / 2, '"'))).has_value());
}

TEST(SvgWithoutReferencesTest, KeepsEmbeddedBitmapsUpToTheirBound)
{
    // Three of a quarter of the bound, and then one that is larger than the rest of it.
    const QByteArray quarter = embedded({2'048, 2'048});
    EXPECT_EQ(cleaned(quarter.repeated(3)).count("<image"), 3);
    EXPECT_EQ(cleaned(quarter.repeated(5)).count("<image"), 4);
    EXPECT_EQ(cleaned(quarter + embedded({20'000, 20'000}) + quarter).count("<image"), 2);
}

} // namespace
} // namespace corvane
