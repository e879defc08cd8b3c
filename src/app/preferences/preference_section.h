#pragma once

#include "app/look/window_look.h"

#include <QWidget>

class QVBoxLayout;

namespace corvane {

/// A titled group of rows on a ground of their own, with lines between them.
class PreferenceSection : public QWidget {
    Q_OBJECT

public:
    PreferenceSection(const QString &title, const WindowLook &look, QWidget *parent = nullptr);

    void addRow(QWidget *row);

private:
    WindowLook m_look;
    QWidget *m_card;
    QVBoxLayout *m_rows;
};

} // namespace corvane
