#include "golden/panel_stage.h"

#include "fakes/layer_walk.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace corvane::test {

QImage PanelStage::paintDesktop(QSize size, double /*scale*/, Wallpaper wallpaper) const
{
    QImage image(size, QImage::Format_RGB32);
    QLinearGradient gradient(0, 0, size.width(), size.height());
    const bool isLight = wallpaper == Wallpaper::Light;
    gradient.setColorAt(0, isLight ? QColor(0xF3, 0xDA, 0xC6) : QColor(0x1E, 0x26, 0x44));
    gradient.setColorAt(1, isLight ? QColor(0xA3, 0xC6, 0xDB) : QColor(0x5A, 0x33, 0x50));
    QPainter(&image).fillRect(image.rect(), gradient);
    return image;
}

Picture PanelStage::picture(Wallpaper wallpaper, double scale, double enlargement)
{
    const Place where = place();
    Picture result;
    result.scale = scale;
    QImage &desktop = m_desktops[{wallpaper, scale}];
    if (desktop.isNull())
        desktop = paintDesktop((where.desktop * scale).toSize(), scale, wallpaper);
    result.image = desktop;
    QImage panel((where.panelSize * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    panel.setDevicePixelRatio(scale / enlargement);
    panel.fill(Qt::transparent);
    {
        QPainter painter(&panel);
        painter.scale(enlargement, enlargement);
        painter.translate(0, where.panelSize.height());
        painter.scale(1, -1);
        paintPanel(painter, where.panelSize, scale);
    }
    panel.setDevicePixelRatio(1);
    QPainter(&result.image).drawImage(where.panel * scale, panel);

    QTransform toPixels = QTransform::fromScale(scale, scale);
    toPixels.translate(where.panel.x() + where.origin.x(),
                       where.panel.y() + where.panelSize.height() - where.origin.y());
    toPixels.scale(1, -1);
    for (const SeenLayer &seen : seenLayers(roots())) {
        if (!seen.text.isEmpty())
            result.letters.push_back(toPixels.mapRect(seen.frame).toAlignedRect());
    }
    return result;
}

QString PanelState::fileName(const Shot &shot) const
{
    return QStringLiteral("%1-%2-%3x.png")
        .arg(QLatin1String(name),
             shot.wallpaper == Wallpaper::Light ? QStringLiteral("light") : QStringLiteral("dark"))
        .arg(shot.scale);
}

std::vector<PanelState> panelStates()
{
    std::vector<PanelState> states = shelfStates();
    states.insert(states.end(), barStates().begin(), barStates().end());
    states.insert(states.end(), tipStates().begin(), tipStates().end());
    return states;
}

std::vector<PanelState> picturedPanelStates()
{
    std::vector<PanelState> states = panelStates();
    std::erase_if(states, [](const PanelState &state) { return state.shots.empty(); });
    return states;
}

std::string testName(const char *state)
{
    std::string name = state;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

} // namespace corvane::test
