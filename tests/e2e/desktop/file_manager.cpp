#include "e2e/desktop/file_manager.h"

#include "e2e/desktop/eventually.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <algorithm>

namespace corvane::e2e {

using namespace Qt::StringLiterals;

namespace {

constexpr auto settings = R"([FolderView]
Mode=icon
BigIconSize=48
[Window]
SidePaneVisible=false
[System]
FallbackIconThemeName=breeze
[Behavior]
SingleClick=false
)";

bool isFileManager(const WindowFacts &window)
{
    return window.windowClass.startsWith("pcmanfm-qt");
}

/// The white area below the bars; null where there is none.
QRect findView(const QImage &window)
{
    const QRgb white = qRgb(255, 255, 255);
    // Left of the first column's icons: near the right edge one may stand or not, as the fonts make
    // the columns narrow or wide.
    constexpr int column = 4;
    constexpr int nextColumn = 10;
    int top = -1;
    for (int y = 0; y < window.height(); ++y) {
        const bool isWhite
            = window.pixel(column, y) == white && window.pixel(nextColumn, y) == white;
        if (isWhite && top < 0)
            top = y;
        if (!isWhite && top >= 0) {
            if (y - top > 60)
                return {0, top, window.width(), y - top};
            top = -1;
        }
    }
    return {};
}

} // namespace

FileManager::FileManager(XDesktop &desktop, const QString &folder, const QRect &frame)
    : m_desktop(desktop)
{
    const QString config
        = desktop.environment().value(u"XDG_CONFIG_HOME"_s) + u"/pcmanfm-qt/default"_s;
    QDir().mkpath(config);
    QFile file(config + u"/settings.conf"_s);
    if (file.open(QFile::WriteOnly))
        file.write(settings);
    file.close();

    // A bus of its own: otherwise a second one would open its folder in the first one's window.
    const QString mend = QCoreApplication::applicationDirPath() + u"/corvane_patient_loops.so"_s;
    m_program
        = desktop.start(u"dbus-run-session"_s,
                        {u"--"_s, u"env"_s, u"LD_PRELOAD="_s + mend, u"pcmanfm-qt"_s, folder});
    const auto window = desktop.waitForWindowOf(*m_program);
    if (!window) {
        m_problem
            = u"the file manager shows no window: "_s + QString::fromUtf8(m_program->output());
        return;
    }
    const auto placed = desktop.place(window->id, frame);
    if (!placed) {
        m_problem = u"the file manager's window cannot be placed"_s;
        return;
    }
    m_frame = placed->frame;
    m_desktop.hands().moveTo(QPoint(5, m_frame.bottom() + 60));
    const bool shown = eventually([this] {
        m_view = findView(m_desktop.server().picture(m_frame)).translated(m_frame.topLeft());
        return !m_view.isEmpty();
    });
    if (!shown)
        m_problem = u"the file manager shows no folder"_s;
    if (QDir(folder).isEmpty())
        return;
    const bool listed = eventually([this] {
        const QImage icon
            = m_desktop.pictureAtRest(QRect(m_view.topLeft() + QPoint(30, 4), QSize(56, 56)));
        for (int i = 0; i < icon.width() * icon.height(); ++i) {
            if ((icon.pixel(i % icon.width(), i / icon.width()) | 0xff000000) != 0xffffffff)
                return true;
        }
        return false;
    });
    if (!listed)
        m_problem = u"the file manager shows no files"_s;
}

void FileManager::selectAll()
{
    m_desktop.hands().click(emptyPlace());
    m_desktop.hands().key('a', {keys::control});
    m_desktop.pictureAtRest(m_view);
}

bool FileManager::chooseCopy()
{
    QRect menu;
    const bool asked = eventually([&] {
        for (const WindowFacts &window : m_desktop.server().windows()) {
            if (window.isViewable && window.isOverrideRedirect && isFileManager(window)
                && window.frame.height() > 40)
                menu = window.frame;
        }
        return !menu.isNull();
    });
    if (!asked)
        return false;
    m_desktop.pictureAtRest(menu);
    m_desktop.hands().key(keys::down);
    m_desktop.hands().key(keys::enter);
    return true;
}

} // namespace corvane::e2e
