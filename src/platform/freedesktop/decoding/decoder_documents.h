#pragma once

#include "platform/freedesktop/decoding/decoder_pool.h"
#include "platform/preview/preview_documents.h"

namespace corvane {

/// Has pictures and documents of previews opened and rendered by the decoders of a pool, which must
/// outlive it and them.
class DecoderDocuments : public PreviewDocuments {
public:
    /// In milliseconds, for each request.
    static constexpr int previewTime = 10'000;

    explicit DecoderDocuments(DecoderPool &pool);

    std::optional<Opened> open(const QUrl &url, QSize wanted, Cancellation &cancellation) override;

private:
    DecoderPool &m_pool;
};

} // namespace corvane
