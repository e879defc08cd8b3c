#include "app/look/text_label.h"
#include "app/preferences/setting_row.h"

#include <QLayout>

#include <gtest/gtest.h>

#include <cstdlib>

namespace corvane::test {

TEST(SettingRow, HasItsTextsInTheMiddleBesideATallControl)
{
    auto *const tall = new QWidget;
    tall->setFixedSize(40, 200);
    SettingRow row(QStringLiteral("Title"), QStringLiteral("Detail"), {tall}, WindowLook());
    row.resize(500, row.sizeHint().height());
    row.layout()->activate();
    const auto labels = row.findChildren<TextLabel *>();
    ASSERT_EQ(labels.size(), 2);
    const int above = labels[0]->geometry().top();
    const int below = row.height() - labels[1]->geometry().bottom() - 1;
    EXPECT_GT(above, 50);
    EXPECT_LE(std::abs(above - below), 1);
}

} // namespace corvane::test
