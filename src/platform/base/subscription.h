#pragma once

#include <functional>
#include <utility>

namespace corvane {

/// Undoes a registration once: when `end` is called, or when this is replaced or destroyed. An
/// empty one does nothing. As a member it ends with its owner.
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
    /// May be called several times, also inside of a registered callback.
    void end()
    {
        if (const auto takeBack = std::exchange(m_takeBack, nullptr))
            takeBack();
    }

private:
    std::function<void()> m_takeBack;
};

} // namespace corvane
