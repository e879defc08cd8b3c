#pragma once

#include "platform/base/main_queue.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace corvane {

class Layer;
class MotionPreference;

/// Keeps the layers of one panel moving, at the display's rate and only while something moves.
///
/// Layers change at once or with a motion; the tree asks for a repaint after a change and, while
/// motions run, once a frame. The frame time stands still between frames, so that everything that
/// changes together moves together. A motion starts one frame in the past: the first picture of it
/// already shows it moved. References must outlive the tree, and the tree its layers.
class LayerTree {
public:
    LayerTree(MainQueue &queue, const MotionPreference &preference);
    LayerTree(const LayerTree &) = delete;
    LayerTree &operator=(const LayerTree &) = delete;
    ~LayerTree();

    /// Called when a repaint is due: after changes, and for every frame of a motion.
    std::function<void()> onNeedsDisplay;

    /// Seconds from frame to frame.
    void setFrameInterval(double seconds);
    double frameTime() const { return m_frameTime; }
    bool isMoving() const { return m_timer != nullptr; }
    /// Counts every change of what is painted, but not the frames of motions.
    std::uint64_t version() const { return m_version; }
    /// Whether a shift of this layer as a whole is all that moves.
    bool onlyShifts(const Layer &layer) const;

    /// While one lives, changes apply at once.
    class WithoutMotion {
    public:
        explicit WithoutMotion(LayerTree &tree);
        ~WithoutMotion();
        WithoutMotion(const WithoutMotion &) = delete;
        WithoutMotion &operator=(const WithoutMotion &) = delete;

    private:
        LayerTree &m_tree;
    };

private:
    friend class Layer;

    /// False while motions are off, for a moment or by the user's wish.
    bool allowsMotion() const;
    void needsDisplay();
    /// The time at which a motion that is made now starts.
    double motionStart();
    void startedMoving(Layer &layer);
    void layerGone(Layer &layer);
    void frame();

    MainQueue &m_queue;
    const MotionPreference &m_preference;
    double m_frameInterval = 1.0 / 60;
    double m_frameTime = 0;
    std::uint64_t m_version = 0;
    int m_withoutMotion = 0;
    std::vector<Layer *> m_moving;
    std::unique_ptr<MainQueue::Timer> m_timer;
};

} // namespace corvane
