#pragma once

namespace corvane {

/// Runs the program in the present desktop session until it is told to end; the process's exit
/// status.
int runApplication(int argc, char **argv);

} // namespace corvane
