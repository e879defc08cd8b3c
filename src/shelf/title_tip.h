#pragma once

#include "platform/base/lifetime.h"
#include "platform/desktop/screens.h"
#include "platform/desktop/tip_window.h"
#include "shelf/tip_card.h"
#include "shelf/tip_frame.h"

#include <QFont>
#include <QRectF>
#include <QString>
#include <QUuid>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace corvane {

class PanelWindow;

/// Shows the whole of a title that is cut off, as a tip at the cell that the pointer rests on. One
/// for all panels.
///
///     none --a cut title under the pointer--> resting --0.7 s without a move--> shown
///     resting, shown --a press, a key, the wheel--> dismissed    shown --12 s--> dismissed
///     shown --the pointer moves to another cut title--> shown
///     resting, shown, dismissed --another title comes under the pointer--> resting
///     resting, shown, dismissed --no cut title under the pointer--> none
///
/// Nothing waits, and there is no window, before the pointer comes to a cut title. Main thread
/// only; everything in the context must outlive it.
class TitleTip {
public:
    /// In seconds: how long the pointer rests before a tip comes.
    static constexpr double restDelay = 0.7;
    /// In seconds: how long the pointer may take from one cell to the next for the next tip to come
    /// at once.
    static constexpr double passage = 0.3;
    /// In seconds: how long it is read at most. Some desktops do not always tell that the pointer
    /// has left a panel.
    static constexpr double longestShown = 12;
    /// In points, between a cell and its tip.
    static constexpr double gap = 6;

    struct Context {
        TipCard::Context card;
        const Screens &screens;
        /// All that may be shown beside a tip.
        std::vector<const PanelWindow *> panels;
        std::function<std::unique_ptr<TipWindow>()> makeWindow;
    };
    explicit TitleTip(Context context);

    /// The title of the cell under the pointer, as its panel shows it.
    struct Title {
        QUuid item;
        QString text;
        QFont font;
        /// The room that it has, in points.
        double width = 0;
        /// In the panel's coordinates.
        QRectF cell;
    };
    enum class Pointer { Still, Moved };
    /// To be called when the pointer moves over the panel or leaves it, and when something else may
    /// be under it; with none where that is no title, or the panel is not used by the pointer alone
    /// just now.
    void follow(const PanelWindow &panel, const std::optional<Title> &title, Pointer pointer);
    /// To be called when the user does something else than to point: no tip comes for this title
    /// before the pointer has been elsewhere.
    void dismiss();
    /// No tips while something is dragged.
    void setDragged(bool isDragged);
    /// To be called after the panels were raised.
    void keepInFront();

    /// What is shown, for tests; null for nothing.
    const TipCard *card() const { return m_stage == Stage::Shown ? &*m_card : nullptr; }

private:
    enum class Stage { None, Resting, Shown, Dismissed };
    /// A cut title, and where its cell is.
    struct Spot {
        const PanelWindow *panel = nullptr;
        QUuid item;
        QString text;
        /// In global points.
        QRectF cell;
        /// `PanelPlacement::scale`.
        double scale = 1;

        friend bool operator==(const Spot &, const Spot &) = default;
    };

    bool isCut(const Title &title) const;
    void leave();
    void comeTo(const Spot &spot, Pointer pointer);
    void rest();
    void wait(double seconds);
    void waited();
    void show();
    TipSurroundings surroundings(const Screen &screen) const;
    void hide();

    Context m_context;
    Stage m_stage = Stage::None;
    /// None only at the stage of that name.
    std::optional<Spot> m_spot;
    bool m_isDragged = false;
    /// The one that the pointer moved over last, or left; only compared.
    const PanelWindow *m_pointedPanel = nullptr;
    /// On the queue's clock.
    double m_lastMove = 0;
    std::optional<double> m_lastShown;
    bool m_isWaiting = false;
    std::optional<TipCard> m_card;
    std::unique_ptr<TipWindow> m_window;
    /// Of what is shown.
    Lifetime m_showing;
    Lifetime m_lifetime;
};

} // namespace corvane
