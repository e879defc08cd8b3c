#pragma once

#include <memory>
#include <type_traits>
#include <utility>

namespace corvane {

/// Guards callbacks that are kept by others: they do nothing once the owner of the `Lifetime` is
/// destroyed.
///
///     m_queue.asyncAfter(delay, m_lifetime.guard([this] { hide(); }));
///
/// An owner holds it as its last data member, so that it is destroyed before everything that the
/// callbacks use. Guarded callbacks may be copied and destroyed on any thread, but must be called
/// on the owner's thread, where the owner cannot end between the check and the call. They may
/// destroy the owner.
///
/// A second `Lifetime` can cancel delayed work, such as a timer or an answer that is no longer
/// awaited: restarting it makes the work guarded before do nothing.
class Lifetime {
public:
    /// Tells whether the lifetime is over, for code that has to check after each call that may
    /// destroy the owner.
    class Token {
    public:
        bool isOver() const { return m_life.expired(); }

    private:
        friend class Lifetime;
        explicit Token(std::weak_ptr<const bool> life)
            : m_life(std::move(life))
        {
        }

        // Weak also during a guarded call, or a check inside of it would find the owner alive after
        // it was destroyed.
        std::weak_ptr<const bool> m_life;
    };

    Lifetime() = default;
    Lifetime(const Lifetime &) = delete;
    Lifetime &operator=(const Lifetime &) = delete;

    Token token() const { return Token(m_life); }

    /// `work` as a function with the same arguments. Once the lifetime is over it does nothing and
    /// returns a value-initialised result: false, null, none, empty.
    template<typename Work>
    auto guard(Work work) const
    {
        return [token = token(), work = std::move(work)]<typename... Arguments>(
                   Arguments &&...arguments) -> std::invoke_result_t<const Work &, Arguments...> {
            if (token.isOver())
                return std::invoke_result_t<const Work &, Arguments...>();
            return work(std::forward<Arguments>(arguments)...);
        };
    }

    /// Everything that was guarded before does nothing from now on.
    void restart() { m_life = std::make_shared<const bool>(true); }

private:
    std::shared_ptr<const bool> m_life = std::make_shared<const bool>(true);
};

} // namespace corvane
