// From Space on the shelf to the preview's window, beside an empty window; and to the pixels of a
// photograph, beside decoding it at the size in which it is shown.

#include "fakes/fake_desktop_services.h"
#include "fakes/fake_file_icons.h"
#include "fakes/fake_file_locality.h"
#include "fakes/fake_keyboard_focus.h"
#include "fakes/fake_panel_window.h"
#include "fakes/fake_window_activation.h"
#include "platform/desktop/keyboard_loan.h"
#include "platform/freedesktop/decoding/decoder_documents.h"
#include "platform/freedesktop/sandbox/sandbox.h"
#include "platform/freedesktop/thumbnails/thumbnailer_registry.h"
#include "platform/qt/base/qt_main_queue.h"
#include "platform/qt/base/qt_work_queue.h"
#include "platform/system/file_url.h"
#include "preview/picture_view.h"
#include "preview/qt_preview_panel.h"
#include "services/preview_loader.h"
#include "support/table.h"

#include <QApplication>
#include <QFile>
#include <QImageReader>
#include <QTemporaryDir>
#include <QWindow>

#include <cmath>
#include <vector>

namespace corvane::bench {

namespace {

constexpr int repetitions = 21;

/// Notes when a window is on screen, and when a picture has been painted.
class Watch : public QObject {
public:
    Watch() { qApp->installEventFilter(this); }

    void begin() { m_exposed = m_painted = 0; }
    bool isExposed() const { return m_exposed > 0; }
    bool isPainted() const { return m_painted > 0; }
    double exposed() const { return m_exposed; }
    double painted() const { return m_painted; }

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        const auto *const window = qobject_cast<QWindow *>(object);
        if (event->type() == QEvent::Expose && window && window->isExposed() && m_exposed == 0)
            m_exposed = now();
        // Told before it is painted; the loop's turn that follows has painted it.
        if (event->type() == QEvent::Paint && dynamic_cast<PictureView *>(object) && !isPainted())
            QMetaObject::invokeMethod(
                this, [this] { m_painted = now(); }, Qt::QueuedConnection);
        return false;
    }

private:
    double m_exposed = 0;
    double m_painted = 0;
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

    QUrl url;
};

void settle()
{
    for (const double start = now(); now() - start < 30;)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

double emptyWindow(Watch &watch)
{
    std::vector<double> times;
    for (int i = 0; i < repetitions; ++i) {
        watch.begin();
        const double start = now();
        QWidget window;
        window.resize(720, 240);
        window.show();
        while (!watch.isExposed())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        times.push_back(watch.exposed() - start);
        window.hide();
        settle();
    }
    return median(times);
}

double preview(PreviewPanel &panel, Watch &watch, bool isPicture)
{
    std::vector<double> times;
    for (int i = 0; i < repetitions; ++i) {
        watch.begin();
        const double start = now();
        panel.makeKeyAndOrderFront();
        while (!watch.isExposed() || (isPicture && !watch.isPainted()))
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        times.push_back((isPicture ? watch.painted() : watch.exposed()) - start);
        panel.orderOut();
        settle();
    }
    return median(times);
}

QByteArray write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    file.open(QFile::WriteOnly);
    file.write(bytes);
    return QFile::encodeName(path);
}

/// Twelve megapixels with the noise of a camera, which is what makes one slow to decode.
QByteArray writePhotograph(const QString &path)
{
    QImage picture(4000, 3000, QImage::Format_RGB32);
    unsigned noise = 1;
    for (int y = 0; y < picture.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            noise = noise * 1664525 + 1013904223;
            const int grain = static_cast<int>(noise >> 28);
            line[x] = qRgb(static_cast<int>(120 + 100 * std::sin(x / 300.0)) + grain,
                           static_cast<int>(120 + 90 * std::cos(y / 400.0)) + grain,
                           60 + y / 30 + grain);
        }
    }
    picture.save(path, "JPG", 90);
    return QFile::encodeName(path);
}

double decoding(const QString &path, QSize size)
{
    std::vector<double> times;
    for (int i = 0; i < repetitions; ++i) {
        const double start = now();
        QImageReader reader(path);
        reader.setScaledSize(size);
        reader.read();
        times.push_back(now() - start);
    }
    return median(times);
}

int run()
{
    const QTemporaryDir folder;
    Watch watch;
    QtMainQueue queue;
    const Sandbox sandbox(ThumbnailerRegistry::environmentProgramFolders());
    const DecoderProgram program(sandbox);
    DecoderPool decoders(program);
    DecoderDocuments documents(decoders);
    QtWorkQueue work;
    const test::FakeFileLocality locality;
    PreviewLoader loader({documents, locality, queue, work, work});
    test::FakeFileIcons icons;
    test::FakeDesktopServices desktop;
    test::FakeWindowActivation activation;
    test::FakeKeyboardFocus focus;
    KeyboardLoan keyboard(focus, queue);
    test::FakePanelWindow shelf;
    shelf.setFrame({600, 938, 300, 44});
    QtPreviewPanel panel({.loading = loader,
                          .icons = icons,
                          .desktop = desktop,
                          .activation = activation,
                          .keyboard = keyboard,
                          .queue = queue,
                          .shelf = shelf});
    OneFile file;
    panel.setController(&file);

    const double floor = emptyWindow(watch);
    file.url = file_url::fromNativePath(write(folder.filePath(QStringLiteral("a.txt")), "a text"));
    const double text = preview(panel, watch, false);
    constexpr double textBound = 3;
    print({"Space to the preview's window, a text", floor, text, "ms", textBound});

    const QString photograph = folder.filePath(QStringLiteral("a.jpg"));
    file.url = file_url::fromNativePath(writePhotograph(photograph));
    const double picture = preview(panel, watch, true);
    constexpr double pictureBound = 1.3;
    // What 1512 by 982 points leave for it.
    print({"Space to a photograph of 12 megapixels", decoding(photograph, {995, 746}), picture,
           "ms", pictureBound});
    panel.setController(nullptr);
    return 0;
}

} // namespace

} // namespace corvane::bench

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return corvane::bench::run();
}
