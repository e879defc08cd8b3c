#pragma once

namespace corvane {

/// To exist while the application object is made. If the toolkit cannot start, because the display
/// cannot be reached or its plug-in cannot be loaded, it ends the process by an abort. With this it
/// ends with status 1 and one line that says why. What the toolkit says meanwhile, and is no reason
/// to end, is passed on afterwards. Made while there is an application object whose translations it
/// takes its line from; that may then go.
class ToolkitStart {
public:
    ToolkitStart();
    ~ToolkitStart();
    ToolkitStart(const ToolkitStart &) = delete;
    ToolkitStart &operator=(const ToolkitStart &) = delete;
};

} // namespace corvane
