#pragma once

#include "platform/base/lifetime.h"

#include <QString>
#include <QUuid>

#include <functional>

namespace corvane {

class MainQueue;
class WorkQueue;

/// Counts the characters of texts. Large texts are counted on another thread; until then a
/// placeholder is shown. Main thread only.
class TextDescriptions {
public:
    /// In UTF-16 code units. Counting more would take longer than a frame.
    static constexpr qsizetype mostCountedAtOnce = 1'000'000;

    /// Both queues must outlive it.
    TextDescriptions(WorkQueue &workQueue, MainQueue &mainQueue);
    TextDescriptions(const TextDescriptions &) = delete;
    TextDescriptions &operator=(const TextDescriptions &) = delete;
    ~TextDescriptions();

    /// Called later, on the main thread, for each large text. Not called after this is destroyed.
    std::function<void(const QUuid &item, const QString &description)> onFound;

    /// "12 characters", or "Counting characters…" for a large text.
    static QString atOnce(const QString &text);
    /// Counts a large text and reports it through `onFound`. Does nothing for a small one, which
    /// `atOnce` has counted.
    void find(const QUuid &item, const QString &text);

private:
    WorkQueue &m_workQueue;
    MainQueue &m_mainQueue;
    Lifetime m_lifetime;
};

} // namespace corvane
