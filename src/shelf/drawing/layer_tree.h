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
/// motions run, once a frame. The frame time does not advance between frames, so that all changes
/// of one turn move in step. A motion that starts while nothing moves is dated one frame back, so
/// that its first frame already shows it moved. References must outlive the tree, and the tree its
/// layers. Main thread only.
class LayerTree {
public:
    LayerTree(MainQueue &queue, const MotionPreference &preference);
    LayerTree(const LayerTree &) = delete;
    LayerTree &operator=(const LayerTree &) = delete;
    ~LayerTree();

    /// Called when a repaint is due: after changes, and for every frame of a motion.
    std::function<void()> onNeedsDisplay;

    /// The time from frame to frame, in seconds; 1/60 unless set.
    void setFrameInterval(double seconds);
    double frameTime() const { return m_frameTime; }
    bool isMoving() const { return m_timer != nullptr; }
    /// Increases with every change of what is painted, but not with the frames of motions.
    std::uint64_t version() const { return m_version; }
    /// Whether the only motion going on is this layer's transform.
    bool onlyShifts(const Layer &layer) const;

    /// While one of these exists, changes are applied without motion.
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

    /// False while a `WithoutMotion` exists, or the user has asked for less motion.
    bool allowsMotion() const;
    void needsDisplay();
    /// The start time for a motion that begins now.
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
