#include "app/reading/all_texts.h"
#include "app/reading/standard_error.h"
#include "app/spoken_texts.h"
#include "app/unanswered_start.h"
#include "fakes/fake_desktop_services.h"
#include "fakes/fake_file_icons.h"
#include "fakes/fake_keyboard_focus.h"
#include "fakes/fake_panel_window.h"
#include "fakes/fake_preview_documents.h"
#include "fakes/fake_window_activation.h"
#include "fakes/test_clock.h"
#include "platform/base/cancellation.h"
#include "platform/desktop/keyboard_loan.h"
#include "preview/preview_window.h"
#include "preview/qt_preview_panel.h"
#include "services/preview_file.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QMimeDatabase>
#include <QTemporaryDir>
#include <QTimer>

#include <fcntl.h>
#include <gtest/gtest.h>

#include <array>
#include <functional>

namespace corvane::test {

namespace {

/// Never answers.
class SilentLoading : public PreviewLoading {
public:
    PreviewDetails placeholder(const QUrl &url) const override
    {
        return {preview_file::shownName(url), {}, {}, {}};
    }
    bool mayNeverAnswer(const QUrl &) const override { return true; }
    void load(const QUrl &, QSize, std::function<void(PreviewContent)>) override { }
    void cancel() override { }
    void render(std::shared_ptr<PreviewDocument>, int, QSize,
                std::function<void(std::optional<QImage>)>) override
    {
    }
    void nextFrame(std::shared_ptr<PreviewDocument>, QSize,
                   std::function<void(std::optional<PreviewDocument::Frame>)>) override
    {
    }
};

struct OneFile : PreviewPanelDataSource, PreviewPanelController {
    int numberOfPreviewItems() const override { return 1; }
    std::optional<QUrl> previewItemAt(int) const override { return url; }
    std::optional<QString> previewItemTitle(int) const override { return std::nullopt; }
    bool acceptsPreviewPanelControl(PreviewPanel &) override { return true; }
    void beginPreviewPanelControl(PreviewPanel &panel) override
    {
        panel.setDataSource(this);
        panel.reloadData();
    }
    void endPreviewPanelControl(PreviewPanel &panel) override { panel.setDataSource(nullptr); }

    QUrl url{QStringLiteral("file:///home/letter.txt")};
};

/// A folder of files that were last changed on the same day.
class PreviewedFiles {
public:
    QUrl file(const QString &name, const QByteArray &contents) const
    {
        QFile file(m_folder.filePath(name));
        if (file.exists())
            return QUrl::fromLocalFile(file.fileName());
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(contents);
        file.flush();
        file.setFileTime(day(), QFile::FileModificationTime);
        return QUrl::fromLocalFile(file.fileName());
    }
    QUrl folder(const QString &name, int items) const
    {
        const QString path = m_folder.filePath(name);
        if (QDir(path).exists())
            return QUrl::fromLocalFile(path);
        EXPECT_TRUE(QDir().mkdir(path));
        for (int i = 0; i < items; ++i)
            file(name + u'/' + QString::number(i), {});
        EXPECT_EQ(::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times().data(), 0), 0);
        return QUrl::fromLocalFile(path);
    }
    QUrl none() const { return QUrl::fromLocalFile(m_folder.filePath(QStringLiteral("gone"))); }
    PreviewContent read(const QUrl &url)
    {
        Cancellation never;
        return preview_file::read(url, {800, 600}, m_documents, never);
    }

private:
    static QDateTime day() { return {{2024, 3, 9}, {14, 5}}; }
    static std::array<timespec, 2> times()
    {
        const timespec time{day().toSecsSinceEpoch(), 0};
        return {time, time};
    }

    QTemporaryDir m_folder;
    FakePreviewDocuments m_documents;
};

/// As the desktop's database of types has it, each release in other words.
QString kindOfPrograms()
{
    return QMimeDatabase()
        .mimeTypeForFile(QStringLiteral("setup.exe"), QMimeDatabase::MatchExtension)
        .comment();
}

} // namespace

TextTable textsOfThePreview()
{
    TextTable table;
    SilentLoading loading;
    TestClock clock;
    FakeFileIcons icons;
    // Ten thousand files, for all languages.
    static PreviewedFiles files;
    PreviewWindow window(loading, clock);
    window.show();
    const auto add = [&](const char *heading, const PreviewContent &content) {
        window.setContent(content, icons.iconForFile(content.url, 128, 1));
        // What is put into a window that is open already is shown with the next turn.
        QCoreApplication::processEvents();
        table.add(QLatin1String("Preview, ") + QLatin1String(heading),
                  spokenTexts(window).replaceInStrings(kindOfPrograms(), QStringLiteral("[kind]")));
    };
    PreviewContent content = files.read(files.file(QStringLiteral("letter.txt"), "Dear all,"));
    add("a text", content);
    std::get<PreviewContent::Text>(content.body).isCut = true;
    add("a text that is too long", content);
    add("an unknown file", files.read(files.file(QStringLiteral("unknown"), QByteArray(1, '\0'))));
    add("an empty file", files.read(files.file(QStringLiteral("empty.pdf"), {})));
    add("a program", files.read(files.file(QStringLiteral("setup.exe"), "MZ")));
    add("an empty folder", files.read(files.folder(QStringLiteral("none"), 0)));
    add("a folder with one item", files.read(files.folder(QStringLiteral("one"), 1)));
    add("a folder with two items", files.read(files.folder(QStringLiteral("two"), 2)));
    add("a folder with very many items", files.read(files.folder(QStringLiteral("many"), 10'001)));
    add("what is no longer there", files.read(files.none()));
    content = files.read(files.file(QStringLiteral("photo.png"), "\x89PNG\r\n\x1a\n"));
    add("a picture", content);
    std::get<PreviewContent::Picture>(content.body).isVector = true;
    add("a drawing", content);
    content = files.read(files.file(QStringLiteral("report.pdf"), "%PDF-1.4\n"));
    add("a page", content);
    auto &pages = std::get<PreviewContent::Pages>(content.body);
    pages.count = 2;
    pages.sizes << pages.sizes.first();
    add("two pages", content);
    pages.count = 900;
    add("more pages than are shown", content);

    FakeDesktopServices desktop;
    FakeWindowActivation activation;
    FakeKeyboardFocus focus;
    KeyboardLoan keyboard(focus, clock);
    FakePanelWindow shelf;
    shelf.setFrame({300, 500, 200, 44});
    OneFile file;
    QtPreviewPanel panel({.loading = loading,
                          .icons = icons,
                          .desktop = desktop,
                          .activation = activation,
                          .keyboard = keyboard,
                          .queue = clock,
                          .shelf = shelf});
    panel.setController(&file);
    window.hide();
    panel.makeKeyAndOrderFront();
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible())
            table.add(QStringLiteral("Preview, what is being read"), spokenTexts(*widget));
    }
    panel.setController(nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return table;
}

TextTable textsOfAStartBesideOneThatDoesNotAnswer()
{
    TextTable table;
    const auto add = [&table](const char *heading, std::optional<qint64> process) {
        // The window is waited for.
        QTimer::singleShot(0, [&table, heading] {
            QWidget *const window = QApplication::activeModalWidget();
            ASSERT_NE(window, nullptr);
            table.add(QLatin1String("Start beside one that does not answer, ")
                          + QLatin1String(heading),
                      spokenTexts(*window));
            window->close();
        });
        const QString error = standardErrorOf([process] { tellOfUnansweredStart(process); });
        table.add(QLatin1String("The same, on the standard error"), {error});
    };
    add("its process known", 4711);
    add("its process unknown", std::nullopt);
    return table;
}

} // namespace corvane::test
