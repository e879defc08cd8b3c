#include "e2e/desktop/corvane_program.h"

#include "e2e/desktop/eventually.h"
#include "e2e/desktop/shelf_in_picture.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <cmath>

namespace corvane::e2e {

using namespace Qt::StringLiterals;

namespace {

constexpr auto serviceName = "example.corvane.Corvane";

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

/// How often the program has gone to sleep, and whether it sleeps now.
QByteArray sleeps(qint64 pid)
{
    const QByteArray status = contents(u"/proc/%1/status"_s.arg(pid));
    if (!status.contains("State:\tS"))
        return {};
    const qsizetype at = status.indexOf("voluntary_ctxt_switches");
    return status.mid(at, status.indexOf('\n', at) - at);
}

struct CarouselLayout {
    double arrows;
    double left;
    double right;
    double padding;
    int visible;
};

CarouselLayout layoutOf(int inView, int total)
{
    CarouselLayout layout{};
    layout.visible = std::min(inView, total);
    const double width = CorvaneProgram::carousel(inView, total).width();
    const double content = layout.visible * 58 + (layout.visible - 1) * 6 + (total >= 2 ? 28 : 0);
    layout.arrows = inView < total ? 28 : 0;
    layout.left = layout.arrows + 23;
    layout.right = width - 23;
    layout.padding = std::max((layout.right - layout.arrows - layout.left - content) * 0.5, 0.0);
    return layout;
}

} // namespace

CorvaneProgram::CorvaneProgram(XDesktop &desktop)
    : CorvaneProgram(desktop, Start{{}, {}, desktop.environment()})
{
}

CorvaneProgram::CorvaneProgram(XDesktop &desktop, const Start &start)
    : m_desktop(desktop)
    , m_environment(start.environment.isEmpty() ? desktop.environment() : start.environment)
{
    if (!start.keepsSettings)
        writeSettings(start);
    const QString program = start.program.isEmpty() ? path() : start.program;
    m_program = std::make_unique<Program>(program, start.arguments, m_environment);
}

QString CorvaneProgram::settingsFolder() const
{
    return m_environment.value(u"XDG_CONFIG_HOME"_s) + u"/Corvane"_s;
}

void CorvaneProgram::writeSettings(const Start &start) const
{
    QDir(settingsFolder()).removeRecursively();
    QDir().mkpath(settingsFolder());
    QFile file(settingsFolder() + u"/Corvane.conf"_s);
    if (!file.open(QFile::WriteOnly))
        return;
    file.write("[General]\n");
    if (start.hasSeenWelcome)
        file.write("settings.seenWelcome=true\n");
    if (start.inViewCount)
        file.write("settings.inViewCount=" + QByteArray::number(*start.inViewCount) + '\n');
    file.write(start.settings);
}

QByteArray CorvaneProgram::settings() const
{
    return contents(settingsFolder() + u"/Corvane.conf"_s);
}

QString CorvaneProgram::path()
{
    const QString chosen = qEnvironmentVariable("CORVANE_PROGRAM");
    return chosen.isEmpty() ? QCoreApplication::applicationDirPath() + u"/corvane"_s : chosen;
}

bool CorvaneProgram::waitUntilReady()
{
    // It is ready when it has its name on the bus, and then sleeps and stays asleep, having nothing
    // more to do.
    const bool named = eventually([this] {
        const auto answer = outputOf(
            u"dbus-send"_s,
            {u"--session"_s, u"--print-reply=literal"_s, u"--dest=org.freedesktop.DBus"_s, u"/"_s,
             u"org.freedesktop.DBus.NameHasOwner"_s, u"string:"_s + QLatin1String(serviceName)},
            m_environment);
        return (answer && answer->contains("true")) || !m_program->isRunning();
    });
    return named && m_program->isRunning()
        && !atRest([this] { return sleeps(m_program->pid()); }).isEmpty();
}

std::optional<int> CorvaneProgram::startAgain()
{
    Program second(path(), {}, m_environment);
    return second.waitForEnd();
}

bool CorvaneProgram::activateAction(const QString &action) const
{
    return outputOf(u"gdbus"_s,
                    {u"call"_s, u"--session"_s, u"--dest"_s, QLatin1String(serviceName),
                     u"--object-path"_s, u"/example/corvane/Corvane"_s, u"--method"_s,
                     u"org.freedesktop.Application.ActivateAction"_s, action, u"[]"_s, u"{}"_s},
                    m_environment)
        .has_value();
}

XServer &CorvaneProgram::panelServer()
{
    XServer *const nested = m_desktop.nested() ? m_desktop.nested()->panelServer() : nullptr;
    return nested ? *nested : m_desktop.server();
}

bool CorvaneProgram::isPanelSurface()
{
    return m_desktop.nested() && !m_desktop.nested()->panelServer();
}

template<class Condition>
std::optional<WindowFacts> CorvaneProgram::find(Condition condition)
{
    for (const WindowFacts &window : panelServer().windows()) {
        if (window.isViewable && window.pid == m_program->pid() && condition(window))
            return window;
    }
    return std::nullopt;
}

std::optional<WindowFacts> CorvaneProgram::window(QSize size)
{
    return find([size](const WindowFacts &window) {
        return !window.isOverrideRedirect && (!size.isValid() || window.frame.size() == size);
    });
}

std::optional<WindowFacts> CorvaneProgram::popup(int height)
{
    return find([height](const WindowFacts &window) {
        return window.isOverrideRedirect && window.frame.top() > 0
            && (height == 0 || window.frame.height() == height);
    });
}

std::optional<WindowFacts> CorvaneProgram::panel()
{
    if (isPanelSurface())
        return panelInPicture();
    // The picture of a drag is an unmanaged window, too, but not at the top edge.
    return find([](const WindowFacts &window) {
        return window.isOverrideRedirect && window.frame.top() == 0;
    });
}

/// A compositor tells nobody of it.
std::optional<WindowFacts> CorvaneProgram::panelInPicture()
{
    constexpr int deepest = 300;
    const QRect output = m_output.isNull() ? QRect({0, 0}, m_desktop.server().size()) : m_output;
    const QRect top(output.topLeft(), QSize(output.width(), deepest));
    const QRect found = shelfIn(m_desktop.server().picture(top), NestedCompositor::wallpaper);
    if (found.isEmpty())
        return std::nullopt;
    WindowFacts facts;
    facts.frame = found.translated(output.topLeft());
    facts.isViewable = true;
    return facts;
}

bool CorvaneProgram::waitUntilShown()
{
    return eventually([this] { return isShown(); });
}

bool CorvaneProgram::waitUntilHidden()
{
    return eventually([this] { return !isShown(); });
}

bool CorvaneProgram::waitForSize(QSize size, const QRect &screen)
{
    const QRect where = screen.isNull() ? QRect({0, 0}, m_desktop.server().size()) : screen;
    const int left = where.x() + (where.width() - size.width()) / 2;
    const bool reached = eventually([&] {
        const auto now = panel();
        return now && now->frame.size() == size && now->frame.top() == where.top()
            && std::abs(now->frame.left() - left) <= 1;
    });
    if (reached)
        m_desktop.pictureAtRest(panel().value_or(WindowFacts{}).frame);
    return reached;
}

bool CorvaneProgram::waitForHeight(int height)
{
    const bool reached = eventually([&] {
        const auto now = panel();
        return now && now->frame.height() == height && body().height() == height;
    });
    if (reached)
        m_desktop.pictureAtRest(panel().value_or(WindowFacts{}).frame);
    return reached;
}

QSize CorvaneProgram::size()
{
    return panel().value_or(WindowFacts{}).frame.size();
}

QRect CorvaneProgram::body()
{
    const auto now = panel();
    if (!now)
        return {};
    if (isPanelSurface())
        return now->frame;
    QRect bounds;
    for (const QRect &part : panelServer().inputShape(now->id))
        bounds = bounds.united(part);
    return bounds.translated(now->frame.topLeft());
}

QPoint CorvaneProgram::at(double x, double y)
{
    return body().topLeft() + QPoint(static_cast<int>(x), static_cast<int>(y));
}

QString CorvaneProgram::spool() const
{
    return m_environment.value(u"TMPDIR"_s) + u"/Corvane-%1"_s.arg(m_program->pid());
}

QStringList CorvaneProgram::spooled() const
{
    return QDir(spool()).entryList(QDir::Files | QDir::NoDotAndDotDot, QDir::Name);
}

QSize CorvaneProgram::carousel(int inView, int total)
{
    const int visible = std::max(std::min(inView, total), 1);
    const int content = visible * 58 + (visible - 1) * 6;
    const int base = content + (inView < total ? 67 : 11) + (total > 1 ? 28 : 0);
    return {base + 11 + 24, carouselHeight};
}

QPoint CorvaneProgram::cell(int inView, int total, int nth)
{
    const CarouselLayout layout = layoutOf(inView, total);
    // The middle of the thumbnail, 24 to 56 above the body's bottom.
    return {static_cast<int>(layout.left + layout.padding + nth * 64 + 29), carouselHeight - 40};
}

QPoint CorvaneProgram::badge(int inView, int total, int nth)
{
    // A point in the badge's lower left quarter, which overlaps the thumbnail.
    return cell(inView, total, nth) + QPoint(13, -14);
}

QPoint CorvaneProgram::leftArrow(int, int)
{
    return {23 + 11, carouselHeight - 31};
}

QPoint CorvaneProgram::rightArrow(int inView, int total)
{
    return {carousel(inView, total).width() - 23 - 11, carouselHeight - 31};
}

} // namespace corvane::e2e
