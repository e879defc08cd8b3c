#pragma once

#include "app/look/window_look.h"

#include <QWidget>

namespace corvane {

class TextLabel;

/// A title and an explanation on the left, controls at the right, which have them as their names
/// and descriptions.
class SettingRow : public QWidget {
    Q_OBJECT

public:
    /// An empty detail takes no room. The row owns the controls from now on.
    SettingRow(const QString &title, const QString &detail, const QList<QWidget *> &controls,
               const WindowLook &look, QWidget *parent = nullptr);

    QString title() const;
    QString detail() const;
    void setDetail(const QString &detail);

protected:
    /// Whether any of the controls is there; otherwise screen readers have to say the texts.
    void setHasControls(bool hasControls);

private:
    TextLabel *m_title;
    TextLabel *m_detail;
};

} // namespace corvane
