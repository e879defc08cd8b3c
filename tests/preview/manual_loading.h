#pragma once

#include "platform/preview/preview_content.h"

#include <QColor>
#include <QImage>
#include <QList>
#include <QUrl>

#include <utility>

namespace corvane::test {

/// Answers when the test says so.
class ManualLoading : public PreviewLoading {
public:
    PreviewDetails placeholder(const QUrl &url) const override
    {
        return {url.fileName(), {}, {}, {}};
    }
    bool mayNeverAnswer(const QUrl &) const override { return isRemote; }
    void load(const QUrl &url, QSize wanted,
              std::function<void(PreviewContent)> completion) override
    {
        asked << url;
        wantedPixels = wanted;
        m_completion = std::move(completion);
    }
    void cancel() override { m_completion = nullptr; }
    void render(std::shared_ptr<PreviewDocument>, int page, QSize pixels,
                std::function<void(std::optional<QImage>)> completion) override
    {
        renderedPages << page;
        rendered << pixels;
        m_rendering = std::move(completion);
    }
    void nextFrame(std::shared_ptr<PreviewDocument>, QSize,
                   std::function<void(std::optional<PreviewDocument::Frame>)> completion) override
    {
        ++framesAsked;
        frameAsked = std::move(completion);
    }

    void answer(PreviewContent content)
    {
        content.url = asked.last();
        content.details.name = asked.last().fileName();
        if (const auto completion = std::exchange(m_completion, nullptr))
            completion(std::move(content));
    }
    /// Gives the rendering that was asked for last.
    void giveRendering(const QColor &color)
    {
        QImage image(rendered.last(), QImage::Format_RGB32);
        image.fill(color);
        if (const auto completion = std::exchange(m_rendering, nullptr))
            completion(image);
    }
    bool isWaitedFor() const { return m_completion != nullptr; }

    bool isRemote = false;
    QList<QUrl> asked;
    QSize wantedPixels;
    QList<int> renderedPages;
    QList<QSize> rendered;
    int framesAsked = 0;
    std::function<void(std::optional<PreviewDocument::Frame>)> frameAsked;

private:
    std::function<void(PreviewContent)> m_completion;
    std::function<void(std::optional<QImage>)> m_rendering;
};

} // namespace corvane::test
