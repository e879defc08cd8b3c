#pragma once

namespace corvane {

class DropItem;

/// Shows one item at full size.
class ItemPresenter {
public:
    virtual ~ItemPresenter() = default;

    virtual void present(const DropItem &item) = 0;
};

} // namespace corvane
