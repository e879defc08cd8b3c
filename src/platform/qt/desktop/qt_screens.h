#pragma once

#include "platform/base/callback_list.h"
#include "platform/base/lifetime.h"
#include "platform/desktop/screens.h"

#include <QObject>

#include <unordered_map>

class QScreen;

namespace corvane {

class MainQueue;

/// The attached screens, as Qt reports them. The queue must outlive it.
class QtScreens : public QObject, public Screens {
public:
    explicit QtScreens(MainQueue &queue);
    ~QtScreens() override;

    std::vector<ScreenPointer> screens() const override;
    ScreenPointer mainScreen() const override;
    void observeChanges(std::function<void()> callback) override;

private:
    void attach(QScreen *screen);
    void detach(QScreen *screen);
    void changed();

    MainQueue &m_queue;
    std::unordered_map<const QScreen *, std::shared_ptr<Screen>> m_known;
    CallbackList<> m_observers;
    bool m_isNotificationDue = false;
    Lifetime m_lifetime;
};

} // namespace corvane
