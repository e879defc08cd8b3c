#include "e2e/desktop/nested_mutter.h"

#include "e2e/desktop/eventually.h"
#include "e2e/desktop/hands.h"

#include <QFile>

namespace corvane::e2e {

using namespace Qt::StringLiterals;

namespace {

// Started once there is an X server for X11's programs.
constexpr auto displayTeller
    = R"(printf '%s\n' "$DISPLAY" "$XAUTHORITY" > "$0.new" && mv "$0.new" "$0"; exec sleep infinity)";

} // namespace

NestedMutter::NestedMutter(XServer &screen, QProcessEnvironment environment, const Kind &kind)
{
    environment.insert(
        u"MUTTER_DEBUG_DUMMY_MODE_SPECS"_s,
        u"%1x%2@60"_s.arg(screen.size().width() / kind.outputs).arg(screen.size().height()));
    environment.insert(u"MUTTER_DEBUG_NUM_DUMMY_MONITORS"_s, QString::number(kind.outputs));
    environment.insert(u"MUTTER_DEBUG_DUMMY_MONITOR_SCALES"_s, QString::number(kind.scale));
    QStringList arguments{u"--wayland"_s, u"--nested"_s, u"--wayland-display"_s, socket()};
    m_program = std::make_unique<Program>(u"mutter"_s,
                                          arguments
                                              + QStringList{u"--"_s, u"sh"_s, u"-c"_s,
                                                            QString::fromLatin1(displayTeller),
                                                            m_folder.filePath(u"display"_s)},
                                          environment, m_folder.path());
    const bool isUp = eventually([this] { return readDisplay() || !m_program->isRunning(); });
    if (!isUp || !m_program->isRunning()) {
        m_problem = u"mutter does not start: "_s + QString::fromUtf8(m_program->output());
        return;
    }
    // Only the environment names the key to a server.
    qputenv("XAUTHORITY", QFile::encodeName(m_authority));
    m_server = std::make_unique<XServer>(m_display.toLatin1());
    qunsetenv("XAUTHORITY");
    if (!m_server->isConnected())
        m_problem = u"mutter's X server cannot be used"_s;
    Hands(screen).click(QPoint(screen.size().width() - 20, screen.size().height() - 20));
}

bool NestedMutter::readDisplay()
{
    QFile file(m_folder.filePath(u"display"_s));
    if (!file.open(QFile::ReadOnly))
        return false;
    const QList<QByteArray> lines = file.readAll().split('\n');
    if (lines.size() < 2)
        return false;
    m_display = QString::fromLatin1(lines[0]);
    m_authority = QFile::decodeName(lines[1]);
    return true;
}

void NestedMutter::addOwnTo(QProcessEnvironment &environment) const
{
    environment.insert(u"XAUTHORITY"_s, m_authority);
}

QList<WindowFacts> NestedMutter::windows()
{
    return m_server ? m_server->windows() : QList<WindowFacts>();
}

void NestedMutter::place(xcb_window_t window, const QRect &frame)
{
    m_server->moveResize(window, frame);
}

} // namespace corvane::e2e
