#pragma once

namespace host {

/// For the beginning of main(), before there is any other thread. A signal that ends the program does so as ever, but
/// first what is Uninterrupted comes to its end and temporary folders are removed. What is ignored stays ignored. A
/// pipe that nobody reads any more, and a file beyond the size that is allowed, become errors of whoever writes.
void watchSignals();

}  // namespace host
