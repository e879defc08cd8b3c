#pragma once

#include "platform/base/lifetime.h"

#include <QString>
#include <QUuid>

#include <functional>

namespace corvane {

class MainQueue;
class WorkQueue;

/// Says how many characters a text has. Large ones are counted beside the main thread: until then
/// it is said that they are. Main thread only.
class TextDescriptions {
public:
    /// Larger ones, in UTF-16 code units, take longer than a frame may.
    static constexpr qsizetype mostCountedAtOnce = 1'000'000;

    /// Both must outlive it.
    TextDescriptions(WorkQueue &workQueue, MainQueue &mainQueue);
    TextDescriptions(const TextDescriptions &) = delete;
    TextDescriptions &operator=(const TextDescriptions &) = delete;
    ~TextDescriptions();

    /// Called later for each large text, never once this is gone.
    std::function<void(const QUuid &item, const QString &description)> onFound;

    /// "12 characters", or what is said meanwhile of a large text.
    static QString atOnce(const QString &text);
    /// Counts a large text for the item; a small one needs no more than `atOnce`.
    void find(const QUuid &item, const QString &text);

private:
    WorkQueue &m_workQueue;
    MainQueue &m_mainQueue;
    Lifetime m_lifetime;
};

} // namespace corvane
