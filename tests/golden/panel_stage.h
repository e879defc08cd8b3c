#pragma once

#include "golden/image_comparison.h"
#include "shelf/drawing/layer.h"

#include <QSizeF>
#include <QString>
#include <QTransform>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace corvane::test {

enum class Wallpaper { Light, Dark };

/// A panel in one of its states on a piece of desktop.
class PanelStage {
public:
    virtual ~PanelStage() = default;

    /// `enlargement` is the part of the scale that is not the screen's, but that of the panel's
    /// content.
    Picture picture(Wallpaper wallpaper, double scale, double enlargement = 1);
    /// The layers that contain all others, from below upward. They may be changed to see whether
    /// that is noticed.
    virtual std::vector<Layer *> roots() = 0;
    /// Says which picture a key of a bitmap layer stands for: keys of thumbnails differ from run to
    /// run.
    virtual QString nameOfPicture(const QString &key) const = 0;
    /// From now on every change applies at once.
    virtual void holdStill() = 0;

protected:
    struct Place {
        /// Of the desktop, in points.
        QSizeF desktop;
        /// The panel's upper left corner on it, from its own.
        QPointF panel;
        QSizeF panelSize;
        /// Where the layers' origin is in the panel, from its lower left.
        QPointF origin;
    };
    virtual Place place() const = 0;
    /// In pixels; the wallpaper alone unless overridden.
    virtual QImage paintDesktop(QSize size, double scale, Wallpaper wallpaper) const;
    virtual void paintPanel(QPainter &painter, QSizeF size, double scale) = 0;

private:
    std::map<std::pair<Wallpaper, double>, QImage> m_desktops;
};

/// Measured by the font, as pictures show it; or the same whatever font is there, for texts that
/// are kept.
enum class TextWidths { Measured, Fixed };

/// A state, and the pictures that are kept of it.
struct PanelState {
    struct Shot {
        Wallpaper wallpaper;
        double scale;
    };

    const char *name;
    std::function<std::unique_ptr<PanelStage>(TextWidths widths)> make;
    /// None where the layers alone are compared.
    std::vector<Shot> shots;

    QString fileName(const Shot &shot) const;
};

const std::vector<PanelState> &shelfStates();
const std::vector<PanelState> &barStates();
const std::vector<PanelState> &tipStates();
/// Where texts of our own are read, in the language that is loaded as they are made.
const std::vector<PanelState> &shelfStatesWithTexts();
const std::vector<PanelState> &barStatesWithTexts();
/// All of the first three, and those of them of which there are pictures.
std::vector<PanelState> panelStates();
std::vector<PanelState> picturedPanelStates();

/// For the names of tests: letters alone.
std::string testName(const char *state);

} // namespace corvane::test
