#pragma once

#include <QWidget>

namespace corvane {

/// One line of plain text that gives way in its middle where there is no room for it.
class ElidedLabel : public QWidget {
public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    void setText(const QString &text);
    /// What is beside the point recedes.
    void setSubdued(bool isSubdued);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_text;
    bool m_isSubdued = false;
};

} // namespace corvane
