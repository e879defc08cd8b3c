#pragma once

#include "core/drop_item.h"
#include "core/message.h"
#include "platform/desktop/panel_window.h"
#include "shelf/bar/view_all_focus.h"
#include "shelf/bar/view_all_layers.h"
#include "shelf/bar/view_all_layout.h"
#include "shelf/drag_source.h"
#include "shelf/drawing/layer_tree.h"
#include "shelf/title_tip.h"

#include <QList>
#include <QSet>
#include <QUuid>

#include <functional>
#include <optional>
#include <span>

namespace corvane {

class DragWriter;
class ItemPreparation;
class Keyboard;
class MainQueue;
class MotionPreference;
class SavedPictures;
struct Theme;

/// The content of the view-all bar: a page of tiles between two arrows, above a row of actions. It
/// shows what `apply` is given, and turns what the user does into callbacks. A callback that is not
/// set is skipped.
///
///     idle --press on a tile--> pressed --release--> toggled, idle
///                               pressed --3 points--> dragging --let go--> idle
///
/// Changes are shown at once, without motion. It refuses drops. Main thread only; everything in the
/// context must outlive the view.
class ViewAllView : public PanelContent {
public:
    /// A scroll event of this size pages by one: in points if precise, else a notch is 4.
    static constexpr double preciseScrollStep = 34;
    static constexpr double wheelScrollStep = 4;

    struct Context {
        PanelWindow &panel;
        MainQueue &queue;
        const MotionPreference &motionPreference;
        const Theme &theme;
        const Keyboard &keyboard;
        const DragWriter &dragWriter;
        SavedPictures &pictures;
        ItemPreparation &preparation;
        /// Null for no tips.
        TitleTip *tip = nullptr;
    };
    explicit ViewAllView(const Context &context);
    ~ViewAllView() override;

    std::function<void(const DropItem &)> onToggleItem;
    std::function<void()> onToggleSelectAll;
    std::function<void()> onCopySelected;
    std::function<void()> onRemoveSelected;
    /// Items were dropped elsewhere: those whose contents the target has. `keep` when Shift was
    /// held as they were let go.
    std::function<void(const QList<QUuid> &ids, bool keep)> onEjected;
    /// -1 is back, 1 forward; more for a key that goes further.
    std::function<void(int step)> onScroll;
    std::function<void()> onClose;
    /// What is on the clipboard is wanted on the shelf.
    std::function<void()> onPaste;
    std::function<void(bool isDraggingOut)> onDragOutChanged;
    /// A message for the user about a drag.
    std::function<void(const Message &message)> onMessage;

    /// Shows the page of `items` that begins at `offset`, or the nearest one that exists. List and
    /// set are not copied and are read again at every event, so they must stay where they are. With
    /// a copy, the next change of one of many thousand items would copy them all.
    void apply(const QList<DropItem> &items, const QSet<QUuid> &selection, int offset);
    /// To be called after the theme's colours have changed.
    void themeChanged();
    /// To be called when the bar was hidden: ends a press that is going on, and ignores keys and
    /// presses that still arrive, until `apply`.
    void wasHidden();
    /// How many tiles fit into the panel's present width.
    int itemsPerPage() const;
    int offset() const { return m_offset; }
    /// Those whose tiles are on the page that is shown; none while the bar is hidden.
    QList<QUuid> itemsInView() const;
    /// In the order of the items, not of their selection. Walks all items.
    QList<DropItem> selectedInOrder() const;

    /// What is on the screen, for tests.
    const ViewAllLayout &layout() const { return m_layout; }
    std::optional<ViewAllControl> hoveredControl() const { return m_hoveredControl; }
    std::optional<QUuid> hovered() const { return m_hovered; }
    std::size_t tileCount() const { return m_layers->tileCount(); }
    const ViewAllLayers &layers() const { return *m_layers; }
    const ViewAllFocus &focus() const { return m_focus; }

    void paint(QPainter &painter, QSizeF size, double scale) override;
    void mouseDown(const MouseEvent &event) override;
    void mouseDragged(const MouseEvent &event) override;
    void mouseUp(const MouseEvent &event) override;
    void mouseEntered(const MouseEvent &event) override;
    void mouseMoved(const MouseEvent &event) override;
    void mouseExited() override;
    void scrollWheel(const ScrollEvent &event) override;
    bool keyDown(const KeyEvent &event) override;
    void keyboardLost() override;
    DragOperation draggingEntered(const DraggingInfo &info) override;
    DragOperation draggingUpdated(const DraggingInfo &info) override;
    void draggingExited() override { }
    bool performDragOperation(const DraggingInfo &info) override;
    void draggingEnded() override { }
    AccessibleNode accessible() const override;
    void perform(const QString &key, const QString &action) override;

private:
    int itemCount() const { return m_items ? static_cast<int>(m_items->size()) : 0; }
    bool isSelected(const DropItem &item) const
    {
        return m_selection && m_selection->contains(item.id());
    }
    view_all_layout::Range visible() const;
    std::span<const DropItem> page() const;
    ViewAllState state() const;
    void relayout();
    const DropItem *itemAt(QPointF point) const;
    const DropItem *itemWithId(const QUuid &id) const;
    bool findHovered();
    void updateHover(QPointF point);
    std::optional<TitleTip::Title> titleUnderPointer() const;
    void showTip(TitleTip::Pointer pointer) const;
    void endTip() const;
    void press(ViewAllControl control);
    void pageBy(int step);
    void pressKey(TypedKey key);
    void toggleSelectAll();
    bool keyForFocus(const KeyEvent &event);
    void moveToTile(int index);
    void moveToNextControl(bool isBackward);
    void moveToControl(std::optional<ViewAllControl> control);
    void pressFocused();
    void followItems();
    void wireDragSource();
    Image dragImage(const DropItem &grabbed, const QList<DropItem> &items) const;

    Context m_context;
    LayerTree m_tree;
    /// Always there; made anew for other colours.
    std::optional<ViewAllLayers> m_layers;
    DragSource m_dragSource;

    const QList<DropItem> *m_items = nullptr;
    const QSet<QUuid> *m_selection = nullptr;
    int m_offset = 0;
    bool m_isShown = false;
    ViewAllLayout m_layout;
    std::optional<QPointF> m_pointer;
    std::optional<QUuid> m_hovered;
    std::optional<ViewAllControl> m_hoveredControl;
    ViewAllFocus m_focus;
    /// The user has just asked for all items to be selected, or for none, and has not been told how
    /// many are.
    bool m_awaitsSelection = false;
    double m_scale = 1;
};

} // namespace corvane
