#pragma once

#include <QStringList>
#include <QWidget>

namespace corvane {

/// Plain text of one line, or a few, that gives way in the middle of its last where there is no
/// room for it.
class ElidedLabel : public QWidget {
public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    void setText(const QString &text);
    /// What is beside the point recedes.
    void setSubdued(bool isSubdued);
    /// One at first.
    void setMaximumLines(int count);

    /// As they stand in that width.
    QStringList lines(int width) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_text;
    bool m_isSubdued = false;
    int m_maximumLines = 1;
};

} // namespace corvane
