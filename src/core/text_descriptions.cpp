#include "core/text_descriptions.h"

#include "core/characters.h"
#include "core/shown_numbers.h"
#include "platform/base/main_queue.h"
#include "platform/base/work_queue.h"

#include <QCoreApplication>

namespace corvane {

namespace {

QString counted(const QString &text)
{
    const qsizetype count = characters::count(text);
    return count == 1
        ? QCoreApplication::translate("ItemTexts", "1 character")
        : QCoreApplication::translate("ItemTexts", "%n characters", nullptr, pluralOf(count));
}

bool isLarge(const QString &text)
{
    return text.size() > TextDescriptions::mostCountedAtOnce;
}

} // namespace

TextDescriptions::TextDescriptions(WorkQueue &workQueue, MainQueue &mainQueue)
    : m_workQueue(workQueue)
    , m_mainQueue(mainQueue)
{
}

TextDescriptions::~TextDescriptions() = default;

QString TextDescriptions::atOnce(const QString &text)
{
    return isLarge(text) ? QCoreApplication::translate("ItemTexts", "Counting characters…")
                         : counted(text);
}

void TextDescriptions::find(const QUuid &item, const QString &text)
{
    if (!isLarge(text))
        return;
    const auto found = m_lifetime.guard([this, item](const QString &description) {
        if (onFound)
            onFound(item, description);
    });
    m_workQueue.run([&mainQueue = m_mainQueue, found, text] {
        mainQueue.async([found, description = counted(text)] { found(description); });
    });
}

} // namespace corvane
