#pragma once

#include "core/item_loading.h"

namespace corvane {

/// Stands where link previews will come from: a link keeps what it was dropped with.
class NoLinkPreviews : public LinkPreviewSource {
public:
    void load(const QUrl & /*url*/, IsWanted /*isWanted*/, Completion /*completion*/) override { }
};

} // namespace corvane
