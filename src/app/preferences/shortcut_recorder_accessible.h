#pragma once

#include <QAccessibleWidget>

namespace corvane {

class ShortcutRecorderView;

/// The recorder's field for assistive programs: a button that is named by what it is for and by
/// what stands in it.
class ShortcutRecorderAccessible : public QAccessibleWidget {
public:
    explicit ShortcutRecorderAccessible(ShortcutRecorderView &view);

    /// Makes the toolkit use it for every field. May be called again.
    static void install();

    QString text(QAccessible::Text kind) const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

private:
    ShortcutRecorderView &m_view;
};

} // namespace corvane
