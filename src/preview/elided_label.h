#pragma once

#include <QStringList>
#include <QWidget>

namespace corvane {

/// A label for plain text of one or a few lines. If there is no room for all of it the last line is
/// cut in the middle, and the whole text is its tool tip.
class ElidedLabel : public QWidget {
public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    void setText(const QString &text);
    /// Draws the text paler than other texts, unless contrast is wanted.
    void setSubdued(bool isSubdued);
    /// Of a text that is not the program's own, such as a name: it is read in its own direction,
    /// wherever it begins.
    void setHasOwnDirection(bool hasOwnDirection);
    /// 1 unless set.
    void setMaximumLines(int count);

    /// The lines as they are shown in that width, in points.
    QStringList lines(int width) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

private:
    QString m_text;
    bool m_isSubdued = false;
    bool m_hasOwnDirection = false;
    int m_maximumLines = 1;
};

} // namespace corvane
