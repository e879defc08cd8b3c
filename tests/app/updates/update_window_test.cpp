#include "app/look/text_label.h"
#include "app/updates/update_texts.h"
#include "app/updates/update_window_controller.h"
#include "app/widget_hands.h"
#include "fakes/fake_window_activation.h"
#include "fakes/user_screens.h"

#include <QLayout>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

using Stage = UpdateReport::Stage;

class UpdateWindowTest : public testing::Test {
protected:
    UpdateWindowTest()
    {
        controller.onInstall = [this] { log << QStringLiteral("install"); };
        controller.onShowFile = [this] { log << QStringLiteral("show file"); };
        controller.onDismiss = [this] { log << QStringLiteral("dismiss"); };
    }
    ~UpdateWindowTest() override { deletePending(); }

    static UpdateReport report(Stage stage)
    {
        return {stage, QStringLiteral("1.2"), QStringLiteral("Faster"), 500'000, 2'000'000};
    }
    void show(Stage stage, UpdateAttention attention = UpdateAttention::Asked)
    {
        controller.show(report(stage), attention);
    }
    QPushButton *button(const char *text)
    {
        for (auto *button : controller.window()->findChildren<QPushButton *>()) {
            if (button->text() == QString::fromUtf8(text) && button->isVisible())
                return button;
        }
        return nullptr;
    }
    QStringList texts()
    {
        QStringList texts;
        for (const auto *label : controller.window()->findChildren<TextLabel *>()) {
            if (label->isVisible())
                texts << label->text();
        }
        return texts;
    }
    QPlainTextEdit &notes() { return *controller.window()->findChild<QPlainTextEdit *>(); }
    QProgressBar &progress() { return *controller.window()->findChild<QProgressBar *>(); }

    FakeWindowActivation activation;
    UserScreens screens;
    QStringList announced;
    UpdateWindowController controller{activation, screens.locator,
                                      [this](const QString &text) { announced << text; },
                                      QStringLiteral("1.0"), true};
    QStringList log;
};

} // namespace

TEST_F(UpdateWindowTest, AnOfferShowsVersionSizeAndNotes)
{
    show(Stage::Available);
    EXPECT_EQ(controller.window()->windowTitle(), QStringLiteral("Corvane 1.2 is available"));
    EXPECT_EQ(texts(),
              (QStringList{QStringLiteral("Corvane 1.2 is available"),
                           QStringLiteral("You have 1.0. The download has 2 MB.")}));
    EXPECT_TRUE(notes().isVisible());
    EXPECT_EQ(notes().toPlainText(), QStringLiteral("Faster"));
    EXPECT_FALSE(progress().isVisible());
    EXPECT_EQ(controller.window()->size(), UpdateWindow::sizeWithNotes);
}

TEST_F(UpdateWindowTest, MarkupIsShownAsItIsWritten)
{
    UpdateReport markup = report(Stage::Available);
    markup.version = QStringLiteral("<b>1</b>");
    markup.notes = QStringLiteral("<a href='x'>y</a>");
    controller.show(markup, UpdateAttention::Asked);
    EXPECT_EQ(notes().toPlainText(), markup.notes);
    EXPECT_EQ(texts().at(0), QStringLiteral("Corvane <b>1</b> is available"));
    for (const auto *label : controller.window()->findChildren<TextLabel *>())
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
}

TEST_F(UpdateWindowTest, TheButtonsDoWhatTheySay)
{
    show(Stage::Available);
    ASSERT_TRUE(button("Install"));
    button("Install")->click();
    EXPECT_EQ(log, QStringList{QStringLiteral("install")});
    button("Later")->click();
    EXPECT_EQ(log.back(), QStringLiteral("dismiss"));
    EXPECT_EQ(controller.window(), nullptr);
    show(Stage::HandedOver);
    button("Show")->click();
    EXPECT_EQ(log.back(), QStringLiteral("show file"));
    EXPECT_NE(controller.window(), nullptr);
    button("Close")->click();
    EXPECT_EQ(controller.window(), nullptr);
}

TEST_F(UpdateWindowTest, WhatIsHandedOverIsCalledADownload)
{
    const auto texts = UpdateTexts::of(report(Stage::Available), QStringLiteral("1.0"), false);
    EXPECT_EQ(texts.action, QStringLiteral("Download"));
}

TEST_F(UpdateWindowTest, ItIsUsedWithTheKeyboardAlone)
{
    show(Stage::Available);
    ASSERT_TRUE(activate(*controller.window()));
    EXPECT_EQ(controller.window()->focusWidget(), button("Install"));
    typeKey(*controller.window(), Qt::Key_Return);
    notes().setFocus();
    typeKey(*controller.window(), Qt::Key_Return);
    EXPECT_EQ(log, (QStringList{QStringLiteral("install"), QStringLiteral("install")}));
    controller.update(report(Stage::Downloading));
    EXPECT_EQ(controller.window()->focusWidget(), button("Cancel"));
    typeKey(*controller.window(), Qt::Key_Escape);
    EXPECT_EQ(log.back(), QStringLiteral("dismiss"));
}

TEST_F(UpdateWindowTest, ReturnOnLaterDoesNotInstall)
{
    show(Stage::Available);
    ASSERT_TRUE(activate(*controller.window()));
    button("Later")->setFocus();
    typeKey(*controller.window(), Qt::Key_Return);
    EXPECT_EQ(log, QStringList{QStringLiteral("dismiss")});
}

TEST_F(UpdateWindowTest, TheDownloadIsSeenToGoOn)
{
    show(Stage::Downloading);
    EXPECT_TRUE(progress().isVisible());
    EXPECT_EQ(progress().value() * 4, progress().maximum());
    EXPECT_EQ(texts().back(), QStringLiteral("500 KB of 2 MB"));
    UpdateReport more = report(Stage::Downloading);
    more.received = more.total;
    controller.update(more);
    EXPECT_EQ(progress().value(), progress().maximum());
}

TEST_F(UpdateWindowTest, OnlyWhatWasAskedForComesForward)
{
    show(Stage::Available, UpdateAttention::Unasked);
    EXPECT_TRUE(activation.broughtForward.isEmpty());
    EXPECT_TRUE(controller.window()->testAttribute(Qt::WA_ShowWithoutActivating));
    show(Stage::Available);
    EXPECT_EQ(activation.broughtForward.size(), 1);
}

TEST_F(UpdateWindowTest, AnUpdateOfAClosedWindowOpensNone)
{
    controller.update(report(Stage::Downloading));
    EXPECT_EQ(controller.window(), nullptr);
}

TEST_F(UpdateWindowTest, EveryFailureSaysSomethingElse)
{
    QStringList details;
    for (int i = 0; i <= static_cast<int>(UpdateFailure::NotWritten); ++i) {
        UpdateReport failed{Stage::Failed};
        failed.failure = static_cast<UpdateFailure>(i);
        const auto texts = UpdateTexts::of(failed, QStringLiteral("1.0"), true);
        EXPECT_EQ(texts.title, QStringLiteral("Corvane could not check for updates"));
        EXPECT_FALSE(texts.detail.isEmpty());
        EXPECT_FALSE(details.contains(texts.detail)) << i;
        details << texts.detail;
    }
}

TEST_F(UpdateWindowTest, WhichWayWasTakenIsSaid)
{
    const auto detail = [](Stage stage, const std::optional<WebRoute> &route,
                           UpdateFailure failure = UpdateFailure::Unreachable) {
        UpdateReport shown = report(stage);
        shown.failure = failure;
        shown.route = route;
        return UpdateTexts::of(shown, QStringLiteral("1.0"), true).detail;
    };
    const WebRoute direct;
    const WebRoute proxied{WebRoute::Kind::Proxied,
                           {WebProxy::Kind::Socks5, QStringLiteral("xn--80ak6aa92e.com"), 9050}};
    for (const Stage stage : {Stage::UpToDate, Stage::Available, Stage::Failed}) {
        EXPECT_TRUE(detail(stage, direct).contains(QStringLiteral("directly")));
        EXPECT_TRUE(detail(stage, proxied)
                        .contains(QStringLiteral("through the proxy xn--80ak6aa92e.com:9050")));
        EXPECT_FALSE(detail(stage, std::nullopt).contains(QStringLiteral("sked")));
    }
    for (const auto kind : {WebRoute::Kind::NeedsScript, WebRoute::Kind::Unusable}) {
        const QString text = detail(Stage::Failed, WebRoute{kind});
        EXPECT_TRUE(text.startsWith(QStringLiteral("Nothing was asked"))) << text.toStdString();
    }
    EXPECT_EQ(detail(Stage::Failed, direct, UpdateFailure::WrongSignature),
              detail(Stage::Failed, std::nullopt, UpdateFailure::WrongSignature));
}

TEST_F(UpdateWindowTest, ScreenReadersAreToldWhatTheButtonIsFor)
{
    show(Stage::Available);
    EXPECT_TRUE(button("Install")->accessibleDescription().contains(
        QStringLiteral("Corvane 1.2 is available")));
    EXPECT_FALSE(notes().accessibleName().isEmpty());
    EXPECT_FALSE(progress().accessibleName().isEmpty());
}

TEST_F(UpdateWindowTest, EachStageIsSaidOnceWhereTheKeyboardStaysOnItsButton)
{
    show(Stage::Checking);
    ASSERT_TRUE(activate(*controller.window()));
    EXPECT_EQ(announced, QStringList()) << "the window is read as it opens";
    controller.update(report(Stage::UpToDate));
    EXPECT_EQ(
        announced,
        QStringList{QStringLiteral("Corvane is up to date. You have version 1.0, the newest.")});
    controller.update(report(Stage::Available));
    EXPECT_EQ(announced.size(), 1) << "the button that gets the keyboard has it as its description";
    UpdateReport downloading = report(Stage::Downloading);
    controller.update(downloading);
    controller.update(report(Stage::Installing));
    EXPECT_EQ(announced.last(), QStringLiteral("Checking and installing…"));
    controller.update(downloading);
    EXPECT_EQ(announced.last(), QStringLiteral("Downloading Corvane 1.2…"));
    const auto count = announced.size();
    downloading.received += 100'000;
    controller.update(downloading);
    EXPECT_EQ(announced.size(), count) << "the progress bar tells that";
}

TEST_F(UpdateWindowTest, WhatNobodyAskedForIsSaidWhereverTheKeyboardIs)
{
    show(Stage::Available, UpdateAttention::Unasked);
    const QString offer
        = QStringLiteral("Corvane 1.2 is available. You have 1.0. The download has 2 MB.");
    EXPECT_EQ(announced, QStringList{offer});
    controller.update(report(Stage::Replaced));
    EXPECT_EQ(announced.size(), 2) << "no button of it has the keyboard";
    button("Close")->click();
    show(Stage::UpToDate);
    EXPECT_EQ(announced.size(), 2) << "it was asked for, and is read as it opens";
}

TEST_F(UpdateWindowTest, EverythingFitsIntoItsWindow)
{
    for (const Stage stage :
         {Stage::Checking, Stage::UpToDate, Stage::Available, Stage::Downloading, Stage::Installing,
          Stage::Replaced, Stage::HandedOver, Stage::Failed}) {
        for (int failure = 0; failure <= static_cast<int>(UpdateFailure::NotWritten); ++failure) {
            UpdateReport shown = report(stage);
            shown.failure = static_cast<UpdateFailure>(failure);
            shown.fileName = QStringLiteral("Corvane-1.2.3-x86_64.AppImage");
            shown.route = {WebRoute::Kind::Proxied,
                           {WebProxy::Kind::Http, QStringLiteral("w").repeated(60), 65535}};
            controller.show(shown, UpdateAttention::Asked);
            const QSize needed = controller.window()->minimumSizeHint();
            const int height = controller.window()->layout()->hasHeightForWidth()
                ? controller.window()->layout()->minimumHeightForWidth(controller.window()->width())
                : needed.height();
            EXPECT_LE(height, controller.window()->height()) << static_cast<int>(stage);
            EXPECT_LE(needed.width(), controller.window()->width()) << static_cast<int>(stage);
        }
    }
}

} // namespace corvane::test
