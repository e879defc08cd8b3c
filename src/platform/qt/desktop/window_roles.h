#pragma once

namespace corvane {

/// From now on screen readers are told that our windows are windows or dialogs, and that plain
/// widgets with a name and others inside are groups. Qt tells them so of its own kinds of widgets
/// only, and calls one that is a plain widget a filler. To be called once.
void installWindowRoles();

} // namespace corvane
