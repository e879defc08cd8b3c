#pragma once

#include <QLabel>

namespace corvane {

/// Text of a window, never markup, in a tone that follows the palette.
class TextLabel : public QLabel {
    Q_OBJECT

public:
    enum class Tone {
        Primary,
        Secondary,
        /// Secondary and spread out: the title above a group.
        Heading,
    };

    TextLabel(const QString &text, const QFont &font, Tone tone, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void applyTone();

    Tone m_tone;
};

} // namespace corvane
