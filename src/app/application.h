#pragma once

namespace corvane {

/// Runs the program in the present X11 session until it is told to end; the process's exit status.
int runApplication(int argc, char **argv);

} // namespace corvane
