#pragma once

#include "e2e/desktop/x_desktop.h"

#include <QRect>

#include <memory>

namespace corvane::e2e {

/// A window of the file manager on one folder.
class FileManager {
public:
    FileManager(XDesktop &desktop, const QString &folder, const QRect &frame);

    /// Empty when its window is shown with its files; else what went wrong.
    QString problem() const { return m_problem; }
    QRect frame() const { return m_frame; }
    /// Where the folder's first file is, in the order of their names.
    QPoint firstFile() const { return m_view.topLeft() + QPoint(58, 32); }
    /// A place in the folder's view where no file is.
    QPoint emptyPlace() const { return m_view.bottomRight() - QPoint(60, 40); }
    void selectAll();
    /// After a drop: chooses "Copy here" from the file manager's menu.
    bool chooseCopy();

private:
    XDesktop &m_desktop;
    std::unique_ptr<Program> m_program;
    QString m_problem;
    QRect m_frame;
    QRect m_view;
};

} // namespace corvane::e2e
