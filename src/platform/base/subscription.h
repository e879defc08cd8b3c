#pragma once

#include <functional>
#include <utility>

namespace corvane {

/// Something that was registered and has to be taken back: that happens when this ends, is replaced
/// or is destroyed, once. An empty one takes nothing back. Held as a member it ends with its owner.
class [[nodiscard]] Subscription {
public:
    Subscription() = default;
    explicit Subscription(std::function<void()> takeBack)
        : m_takeBack(std::move(takeBack))
    {
    }
    Subscription(Subscription &&other) noexcept
        : m_takeBack(std::exchange(other.m_takeBack, nullptr))
    {
    }
    Subscription &operator=(Subscription &&other) noexcept
    {
        if (this != &other) {
            end();
            m_takeBack = std::exchange(other.m_takeBack, nullptr);
        }
        return *this;
    }
    Subscription(const Subscription &) = delete;
    Subscription &operator=(const Subscription &) = delete;
    ~Subscription() { end(); }

    bool isActive() const { return m_takeBack != nullptr; }
    /// May be called again, also from inside of what was registered.
    void end()
    {
        if (const auto takeBack = std::exchange(m_takeBack, nullptr))
            takeBack();
    }

private:
    std::function<void()> m_takeBack;
};

} // namespace corvane
