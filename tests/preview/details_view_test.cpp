#include "preview/details_view.h"

#include <gtest/gtest.h>

namespace corvane::test {

TEST(DetailsView, LetsTheNameStandOut)
{
    PreviewContent content;
    content.details = {QStringLiteral("name"), QStringLiteral("kind"), {}, {}};
    const DetailsView view(content, {}, nullptr);
    QList<const QWidget *> labels;
    for (const auto *child : view.findChildren<QWidget *>()) {
        if (!child->accessibleName().isEmpty())
            labels << child;
    }
    ASSERT_EQ(labels.size(), 2);
    EXPECT_EQ(labels[0]->accessibleName(), QStringLiteral("name"));
    EXPECT_EQ(labels[0]->font().weight(), QFont::DemiBold);
    EXPECT_GT(labels[0]->font().pointSizeF(), labels[1]->font().pointSizeF());
    EXPECT_LT(labels[1]->font().weight(), QFont::DemiBold);
}

TEST(DetailsView, IsDescribedByWhatStandsBelowTheName)
{
    PreviewContent content;
    content.details = {QStringLiteral("Holiday"), QStringLiteral("Folder"),
                       QStringLiteral("0 items"), QStringLiteral("today")};
    EXPECT_EQ(DetailsView(content, {}, nullptr).accessibleDescription(),
              QStringLiteral("Folder, 0 items, Modified today"));
    content.body = PreviewContent::Missing{};
    EXPECT_EQ(DetailsView(content, {}, nullptr).accessibleDescription(),
              QStringLiteral("This item is no longer there."));
}

} // namespace corvane::test
