#pragma once

#include "app/look/window_look.h"
#include "app/preferences/preferences_context.h"

#include <QWidget>

namespace corvane {

/// What the program is, and where to learn more.
class AboutPane : public QWidget {
    Q_OBJECT

public:
    explicit AboutPane(PreferencesContext context, QWidget *parent = nullptr);

private:
    QWidget *makeParagraph(const QString &text) const;
    QWidget *makeLinks();
    QWidget *makeLink(const QString &text, const QString &description, const QUrl &url);

    PreferencesContext m_context;
    WindowLook m_look;
};

} // namespace corvane
