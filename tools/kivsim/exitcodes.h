// Exit statuses of kivsim's own failures; any other status is the command's.
// The manual page tells them to the user (kivsim.h2m, EXIT STATUS).
#pragma once

namespace ExitCode {
constexpr int Usage = 2; // bad arguments or a folder that is no device
constexpr int SetupFailed = 125; // the sandbox could not be set up
} // namespace ExitCode
