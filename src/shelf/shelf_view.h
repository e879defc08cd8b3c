#pragma once

#include "platform/base/lifetime.h"
#include "platform/desktop/panel_window.h"
#include "shelf/drag_source.h"
#include "shelf/shelf_hit_test.h"
#include "shelf/shelf_layers.h"
#include "shelf/shelf_snapshot.h"
#include "shelf/title_tip.h"

#include <QList>
#include <QUuid>

#include <functional>
#include <optional>

namespace corvane {

class DragWriter;
class ItemPreparation;
class Keyboard;
class LayerAnimator;
class MainQueue;
class MotionPreference;
class PasteboardIngest;
class SavedPictures;
class TextMeasurer;
struct Theme;

/// The content of the shelf's panel: shows a snapshot, and turns what the user does on it into
/// callbacks. It never changes the model itself. A callback that is not set is skipped. Main thread
/// only; everything in the context must outlive the view.
class ShelfView : public PanelContent {
public:
    /// In seconds.
    static constexpr double flashDuration = 1.4;
    /// How far one pages by one: in points for precise deltas, otherwise in units of which a notch
    /// has 4.
    static constexpr double preciseScrollStep = 28;
    static constexpr double wheelScrollStep = 4;
    /// In seconds; without phases, less than a step is forgotten after such a pause.
    static constexpr double scrollMemory = 0.25;

    struct Context {
        PanelWindow &panel;
        MainQueue &queue;
        const MotionPreference &motionPreference;
        const Theme &theme;
        const LayerAnimator &animator;
        const TextMeasurer &measurer;
        const Keyboard &keyboard;
        const PasteboardIngest &ingest;
        const DragWriter &dragWriter;
        SavedPictures &pictures;
        ItemPreparation &preparation;
        /// Null for no tips.
        TitleTip *tip = nullptr;
    };
    explicit ShelfView(const Context &context);
    ~ShelfView() override;

    std::function<void(const QList<DropItem> &)> onDropAccepted;
    /// An item was dropped elsewhere and the target has its contents; `keep` when Shift was held as
    /// it was let go. By id, because indices may have changed meanwhile.
    std::function<void(const QUuid &id, bool keep)> onEjected;
    std::function<void(int index)> onRemove;
    std::function<void(int index)> onFocus;
    /// Negative is back.
    std::function<void(int steps)> onScroll;
    std::function<void()> onCopy;
    std::function<void()> onQuickLook;
    std::function<void()> onViewAll;
    /// Escape on the empty shelf.
    std::function<void()> onClose;
    std::function<void(bool isDraggingOut)> onDragOutChanged;
    std::function<void(bool isInside)> onPointerInside;
    /// Called with true when a drop's contents are on their way; when they are here, with whether
    /// others are awaited.
    std::function<void(bool isAwaiting)> onAwaitsDrop;
    /// Another program's drag has come over the panel, also while the shelf is closed, or has left
    /// it or was dropped. Called before it is decided whether it may be dropped.
    std::function<void(bool isOver)> onDragOver;
    /// A button or key was pressed, or a drag that can be dropped here entered. Called before
    /// anything else is done about it.
    std::function<void()> onUsed;
    /// `preferredSize` has another answer for the snapshot that is shown. Called before anything is
    /// shown of it.
    std::function<void()> onWantsRoom;
    /// The body was pressed. Called after everything else was done about it.
    std::function<void()> onPressed;

    void apply(const ShelfSnapshot &snapshot);
    /// To be called after the theme's colours have changed.
    void themeChanged();
    QSizeF preferredSize(const ShelfSnapshot &snapshot) const;
    /// Shows a message in place of the details, for `flashDuration`. Ignored without items, and
    /// while the shelf looks like a drop target.
    void flash(const QString &message);
    /// To be called after the panel's frame changed without a new snapshot.
    void panelWasResized() { updateBody(); }
    /// Frames a second while something moves.
    void setRefreshRate(double rate);
    /// Whether a point of the panel is on the body of an open shelf.
    bool hitTest(QPointF point) const;

    /// What is on the screen, for tests.
    const ShelfLook &look() const { return m_look; }
    const ShelfLayers &layers() const { return *m_layers; }
    std::size_t cellCount() const { return m_layers->cellCount(); }
    bool isMoving() const { return m_tree.isMoving(); }

    void paint(QPainter &painter, QSizeF size, double scale) override;
    void mouseDown(const MouseEvent &event) override;
    void mouseDragged(const MouseEvent &event) override;
    void mouseUp(const MouseEvent &event) override;
    void mouseEntered(const MouseEvent &event) override;
    void mouseMoved(const MouseEvent &event) override;
    void mouseExited() override;
    void scrollWheel(const ScrollEvent &event) override;
    bool keyDown(const KeyEvent &event) override;
    bool takesPaste() const override;
    void keyboardLost() override;
    DragOperation draggingEntered(const DraggingInfo &info) override;
    DragOperation draggingUpdated(const DraggingInfo &info) override;
    void draggingExited() override;
    bool needsAddresses(const QStringList &types) const override;
    void dropIsAwaited() override;
    std::optional<QUrl> placeForPromisedFile(const QString &name) override;
    bool performDragOperation(const DraggingInfo &info) override;
    void draggingEnded() override;
    AccessibleNode accessible() const override;
    void perform(const QString &key, const QString &action) override;

private:
    ShelfTextWidths textWidths(const ShelfSnapshot &snapshot) const;
    void showFlash(const QString &message);
    void relayout();
    void arrange();
    void updateBody();
    QRectF bodyRect() const;
    QPointF inBody(QPointF point) const;
    QPointF fromTopCentre(QPointF point) const;
    void updateHover(QPointF point);
    std::optional<TitleTip::Title> titleUnderPointer() const;
    void showTip(TitleTip::Pointer pointer) const;
    void endTip() const;
    std::optional<int> itemToActOn() const;
    void performAction(ShelfAction action) const;
    void press(const ShelfHit &hit, QPointF point);
    void pressCell(int itemIndex, QPointF point);
    void pageBy(int steps);
    bool keyForItems(const KeyEvent &event);
    void pressKey(const KeyEvent &event) const;
    bool keyForEverything(const KeyEvent &event);
    void moveKeyboard(bool isBackward);
    void moveKeyboardTo(const ShelfHit &stop);
    void returnToItem();
    void pressFocused();
    void performOnItem(const QUuid &id, int index, const QString &action);
    void wireDragSource();
    QRectF thumbFrame(int index) const;
    DragSource::Picture dragPicture(const DropItem &item, int index, QPointF from) const;
    void updateDragTargeted();
    void tellDragOver(bool isOver);

    Context m_context;
    LayerTree m_tree;
    /// Always there; made anew for other colours.
    std::optional<ShelfLayers> m_layers;
    ShelfLook m_look;
    DragSource m_dragSource;
    double m_scale = 1;
    bool m_wasMoving = false;
    /// Relative to the panel's top centre, which stays where it is when the panel resizes.
    std::optional<QPointF> m_pointer;
    bool m_refusesDrag = false;
    bool m_isDragOver = false;
    /// Also one that may not be dropped.
    bool m_isForeignDragOver = false;
    int m_awaitedDrops = 0;
    Lifetime m_flashEnd;
    double m_scrollAccumulator = 0;
    double m_lastScrollTime = 0;
    Lifetime m_lifetime;
};

} // namespace corvane
