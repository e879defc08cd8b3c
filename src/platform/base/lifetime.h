#pragma once

#include <memory>
#include <type_traits>
#include <utility>

namespace corvane {

/// The life of its owner, for callbacks that others keep: what it guards does nothing once the
/// owner is gone.
///
///     m_queue.asyncAfter(delay, m_lifetime.guard([this] { hide(); }));
///
/// An owner holds it as its last data member, so that it ends before all that the callbacks use.
/// What is guarded may be copied, kept and destroyed on any thread, but must be called on the
/// owner's, where the owner cannot end between the question and the call. It may destroy the owner.
///
/// A further one, restarted by whatever makes delayed work out of date, voids such work: a timer
/// that is started anew, an answer that nobody waits for any more.
class Lifetime {
public:
    /// Whether a life is over, for work that has to ask more than once: after each call that may
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

        // Weak also during a guarded call, or whoever asks inside of it would be told that the
        // owner lives.
        std::weak_ptr<const bool> m_life;
    };

    Lifetime() = default;
    Lifetime(const Lifetime &) = delete;
    Lifetime &operator=(const Lifetime &) = delete;

    Token token() const { return Token(m_life); }

    /// `work`, to be called with the same arguments. Once the life is over nothing is called, and a
    /// value-initialised result comes back: false, null, none, empty.
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

    /// Ends, and begins anew: what was guarded before does nothing from now on.
    void restart() { m_life = std::make_shared<const bool>(true); }

private:
    std::shared_ptr<const bool> m_life = std::make_shared<const bool>(true);
};

} // namespace corvane
