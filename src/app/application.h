#pragma once

namespace corvane {

/// Runs the program in the present desktop session until it ends. Returns the exit status of the
/// process.
int runApplication(int argc, char **argv);

} // namespace corvane
