#pragma once

#include <QRect>
#include <QString>

#include <functional>
#include <vector>

class QWidget;

namespace corvane {
class Layer;
}

namespace corvane::test {

/// One small thing that is wrong with what is drawn, and that has to be noticed.
struct Damage {
    QString name;
    std::function<void()> make;
    std::function<void()> mend;
    /// Of a window, in points: nothing outside it changes. Null for all of it.
    QRect part = {};
    /// Something of a window is gone; a tenth of that is its opacity changed by 0.1.
    bool isErasure = false;
};

/// Every layer that can be seen erased, shifted by a point to either side, and its opacity changed
/// by 0.1; every icon another one, every text with another word and with another letter.
std::vector<Damage> damagesOf(const std::vector<Layer *> &roots);

/// The same for every widget that can be seen in a window, but for their opacities.
std::vector<Damage> damagesOf(QWidget &window);

} // namespace corvane::test
