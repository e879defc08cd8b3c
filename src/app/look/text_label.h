#pragma once

#include <QLabel>

namespace corvane {

/// A label for plain text, in a tone that follows the palette.
class TextLabel : public QLabel {
    Q_OBJECT

public:
    enum class Tone {
        Primary,
        Secondary,
        /// Like `Secondary`, with wider letter spacing where letters are not joined: the title of a
        /// group.
        Heading,
    };

    TextLabel(const QString &text, const QFont &font, Tone tone, QWidget *parent = nullptr);

    /// A control has the text as its name or description. Screen readers say it there, and not
    /// among what they read as the window opens.
    void setSaidByControl(bool isSaid) { m_isSaidByControl = isSaid; }
    bool isSaidByControl() const { return m_isSaidByControl; }

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void applyTone();
    void drawLinesFromTheRight();

    Tone m_tone;
    bool m_isSaidByControl = false;
};

} // namespace corvane
