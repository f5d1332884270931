#pragma once

#include <cstddef>

/// The memory of this process as the kernel counts it.
namespace memory {

/// Bytes resident now, after what is free was given back.
std::size_t resident();
/// Starts to watch for the highest use from here on.
void watchPeak();
/// The highest use since then, in bytes.
std::size_t peak();

} // namespace memory
