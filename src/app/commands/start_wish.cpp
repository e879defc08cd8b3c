#include "app/commands/start_wish.h"

#include "app/commands/command_problem.h"
#include "app/commands/native_paths.h"
#include "platform/qt/pasteboard/uri_list.h"
#include "platform/system/file_url.h"

#include <QFile>

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace corvane {

namespace {

QString actionOf(CommandLine::Wish wish)
{
    using enum CommandLine::Wish;
    if (wish == Toggle)
        return QStringLiteral("toggle");
    if (wish == ShowAll)
        return QStringLiteral("show-all");
    return wish == Preferences ? QStringLiteral("preferences") : QString();
}

std::optional<QByteArray> standardInput(qint64 limit)
{
    constexpr qsizetype piece = 65'536;
    QByteArray bytes;
    while (bytes.size() <= limit) {
        const qsizetype end = bytes.size();
        bytes.resize(end + piece);
        const ssize_t count = ::read(STDIN_FILENO, bytes.data() + end, piece);
        bytes.truncate(end + std::max<ssize_t>(count, 0));
        if (count == 0)
            return bytes;
        if (count < 0 && errno != EINTR)
            return std::nullopt;
    }
    return std::nullopt;
}

} // namespace

StartWish::Surroundings StartWish::Surroundings::ofThisProcess()
{
    return {native_paths::currentFolder(), standardInput};
}

StartWish::StartWish(const CommandLine &line, const Surroundings &surroundings)
    : m_isPut(line.wish == CommandLine::Wish::Put)
    , m_action(actionOf(line.wish))
{
    for (const QByteArray &place : line.places)
        add(place, surroundings);
}

void StartWish::add(const QByteArray &place, const Surroundings &surroundings)
{
    if (place == "-")
        addInput(surroundings);
    // A file of that name comes first.
    else if (native_paths::isAddress(place) && !native_paths::exists(place))
        addAddress(place);
    else
        addPath(place, surroundings.folder);
}

void StartWish::addAddress(const QByteArray &address)
{
    const QUrl url
        = address.contains('\n') || address.contains('\r') ? QUrl() : uri_list::parseLine(address);
    if (!url.isValid()) {
        m_problems << command_problem::line(CommandProblem::NoAddress, {address});
    } else if (url.isLocalFile()) {
        addPath(file_url::nativePath(url), {});
    } else {
        if (m_deliveries.empty() || m_deliveries.back().contents.kind == ShelfDelivery::Kind::Text)
            m_deliveries.emplace_back();
        m_deliveries.back().contents.bytes += address + "\r\n";
        ++m_deliveries.back().count;
    }
}

void StartWish::addPath(const QByteArray &place, const QByteArray &folder)
{
    const QByteArray path = native_paths::absolute(place, folder);
    if (path.isEmpty() || !native_paths::exists(path)) {
        m_problems << command_problem::line(CommandProblem::NoFile, {place});
        return;
    }
    if (m_deliveries.empty() || m_deliveries.back().contents.kind == ShelfDelivery::Kind::Text)
        m_deliveries.emplace_back();
    m_deliveries.back().contents.bytes
        += file_url::encoded(file_url::fromNativePath(path), path) + "\r\n";
    ++m_deliveries.back().count;
}

void StartWish::addInput(const Surroundings &surroundings)
{
    const auto text = surroundings.readInput(ShelfRequests::maximumBytes);
    if (!text)
        m_problems << command_problem::line(CommandProblem::InputUnreadable);
    else if (!text->isValidUtf8())
        m_problems << command_problem::line(CommandProblem::InputNotUtf8);
    else if (text->trimmed().isEmpty())
        m_problems << command_problem::line(CommandProblem::InputEmpty);
    else
        m_deliveries.push_back({{ShelfDelivery::Kind::Text, *text}, 1});
}

RunningProgram::Answer StartWish::handOver(const RunningProgram &other)
{
    using Answer = RunningProgram::Answer;
    if (isPlain())
        return other.activate();
    if (!m_action.isEmpty())
        return other.act(m_action);
    // What has arrived is not handed over again if the other process ends in between.
    while (!m_deliveries.empty()) {
        int items = 0;
        const Answer answer = other.put(m_deliveries.front().contents, items);
        if (answer != Answer::Done)
            return answer;
        const int missing = m_deliveries.front().count - items;
        if (missing > 0)
            m_problems << command_problem::line(CommandProblem::SomeNotTaken,
                                                {QByteArray::number(missing)});
        m_deliveries.pop_front();
    }
    return Answer::Done;
}

void StartWish::fulfil(ShelfRequests &requests)
{
    if (!m_action.isEmpty())
        requests.act(m_action, {});
    if (m_deliveries.empty())
        return;
    // One after the other: a large text takes longer than the file behind it.
    auto rest = std::exchange(m_deliveries, {});
    const ShelfDelivery next = std::move(rest.front().contents);
    rest.pop_front();
    requests.put(next, [rest = std::move(rest), &requests](int) {
        StartWish later({}, {});
        later.m_deliveries = rest;
        later.fulfil(requests);
    });
}

} // namespace corvane
