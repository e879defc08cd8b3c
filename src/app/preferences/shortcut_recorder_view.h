#pragma once

#include "app/look/window_look.h"
#include "input/shortcut_recorder.h"

#include <QWidget>

#include <functional>
#include <optional>

namespace corvane {

/// The field in which the user changes a shortcut: a click, Space or Return, then the combination.
///
/// While it waits for the combination, no other part of the window gets a key, and no other program
/// either. The combination is shown in red where it could not be registered. Screen readers say
/// what comes to stand in it while the user is there. What it is given must outlive it.
class ShortcutRecorderView : public QWidget {
    Q_OBJECT

public:
    /// `announce` has screen readers say a text at once.
    ShortcutRecorderView(KeyMonitors &monitors, HotKeyService &hotKeys,
                         std::function<void(const QString &text)> announce,
                         QWidget *parent = nullptr);
    ~ShortcutRecorderView() override;

    const std::optional<Shortcut> &shortcut() const { return m_recorder.shortcut(); }
    void setShortcut(const std::optional<Shortcut> &shortcut) { m_recorder.setShortcut(shortcut); }
    bool hasConflict() const { return m_recorder.hasConflict(); }
    void setConflict(bool conflict) { m_recorder.setConflict(conflict); }
    bool isRecording() const { return m_recorder.isRecording(); }

    /// What stands in it.
    QString text() const;

    QSize sizeHint() const override;

    /// After a combination has been recorded; may destroy the view.
    std::function<void(const Shortcut &)> onChange;

public Q_SLOTS:
    /// What a click does.
    void toggleRecording() { m_recorder.clicked(); }

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QFont textFont() const;
    QString elidedText() const;
    QColor textColor() const;
    void takeKeyboard();
    void giveKeyboardBack();
    void changed();
    void tell();

    std::function<void(const QString &)> m_announce;
    WindowLook m_look;
    ShortcutRecorder m_recorder;
    /// What screen readers know to stand in it.
    QString m_told;
    /// Set when the field got the focus by a key; after a click no ring is needed.
    bool m_showsFocus = false;
};

} // namespace corvane
