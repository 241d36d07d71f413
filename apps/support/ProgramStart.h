#pragma once

namespace apps {

/// For the first line of a main function, before there is any other thread. From then on a program that runs out of
/// memory, meets an exception that nobody catches or is given up by a library says so in one line on standard error and
/// ends with EXIT_INTERNAL, without its temporary folders. What it opens never takes the place of a standard stream
/// that it was started without. A module that is loaded into somebody else's program decides nothing of that kind.
/// Signals are watched (host/files/SignalWatch). `name` must live on.
void startProgram(const char* name);

}  // namespace apps
