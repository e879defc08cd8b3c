#pragma once

#include "app/look/shell_window.h"
#include "app/look/window_look.h"
#include "app/updates/update_report.h"

#include <functional>
#include <optional>

class QHBoxLayout;
class QPlainTextEdit;
class QProgressBar;

namespace corvane {

class ActionButton;
class TextLabel;
struct UpdateTexts;

/// Tells of an update: a title, what there is to know, the notes where there are any, how far the
/// download is, and one or two buttons. Small where there are no notes, and higher only where its
/// text would not fit.
class UpdateWindow : public ShellWindow {
    Q_OBJECT

public:
    static constexpr QSize smallSize{420, 168};
    static constexpr QSize sizeWithNotes{460, 400};

    /// `announce` has screen readers say a text at once, wherever the keyboard is.
    UpdateWindow(const ScreenLocator &screenLocator,
                 std::function<void(const QString &text)> announce, std::function<void()> onClose);

    /// Called when the user clicks the button beside the one that closes.
    std::function<void()> onAction;

    void setReport(const UpdateReport &report, const UpdateTexts &texts);
    /// Announces what is shown, for a window that opens without the keyboard.
    void announce() const { m_announce(m_spoken); }

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QHBoxLayout *makeButtons();

    WindowLook m_look;
    std::function<void(const QString &)> m_announce;
    /// Of the report that is shown.
    std::optional<UpdateReport::Stage> m_stage;
    QString m_spoken;
    TextLabel *m_title;
    TextLabel *m_detail;
    QPlainTextEdit *m_notes;
    QProgressBar *m_progress;
    ActionButton *m_action;
    ActionButton *m_dismissal;
};

} // namespace corvane
